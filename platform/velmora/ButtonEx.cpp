#include "platform/velmora/ButtonEx.h"

#include "platform/vcl/core/DefineClass.h"

namespace velmora {

static_assert(static_cast<int>(bexNormal) == static_cast<int>(pshNormal) &&
              static_cast<int>(bexDisabled) == static_cast<int>(pshDisabled) &&
              static_cast<int>(bexPressed) == static_cast<int>(pshPressed) &&
              static_cast<int>(bexHovered) == static_cast<int>(pshHot) &&
              static_cast<int>(bexDown) == static_cast<int>(pshDown) &&
              static_cast<int>(bexDownHovered) == static_cast<int>(pshDownHot));

const TMetaClass& TCustomButtonEx::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomButtonEx>(L"TCustomButtonEx", TPushControl::StaticClass());
    return meta;
}

TCustomButtonEx::TCustomButtonEx(TComponent* AOwner) : TPushControl(AOwner) {
    FImageLink.OnChange = [this](TObject*) { Invalidate(); };
}

TCustomButtonEx::~TCustomButtonEx() {
    if (FImageList) FImageList->UnRegisterChanges(&FImageLink);
}

TButtonExState TCustomButtonEx::GetState() const {
    return static_cast<TButtonExState>(GetPushState());
}

void TCustomButtonEx::StateChanged() {
    OnStateChange(this);
}

bool TCustomButtonEx::IsSunken() const {
    const TButtonExState state = GetState();
    return state == bexPressed || state == bexDown || state == bexDownHovered;
}

void TCustomButtonEx::SetDrawFocusedRect(bool value) {
    Change(FDrawFocusedRect, value);
}

void TCustomButtonEx::SetDrawHoveredIfFocused(bool value) {
    FDrawHoveredIfFocused = value;
    UpdateState();
}

void TCustomButtonEx::SetImageList(TCustomImageList* value) {
    if (FImageList == value) return;
    if (FImageList) {
        FImageList->UnRegisterChanges(&FImageLink);
        FImageList->RemoveFreeNotification(this);
    }
    FImageList = value;
    if (value) {
        value->RegisterChanges(&FImageLink);
        value->FreeNotification(this);
    }
    FPaintFromImageList = value != nullptr;
    Invalidate();
}

void TCustomButtonEx::Notification(TComponent* component, TOperation operation) {
    TPushControl::Notification(component, operation);
    if (operation == opRemove && component == FImageList) SetImageList(nullptr);
}

// --- painting

void TCustomButtonEx::Paint() {
    DrawBackground();
    if (IsFocusShown()) DrawFocusRect();
}

TRect TCustomButtonEx::GetFocusRect() const {
    TRect rect = GetClientRect();
    rect.Inflate(-FFocusedRectMargin.Width, -FFocusedRectMargin.Height);
    return rect;
}

void TCustomButtonEx::DrawFocusRect() {
    GetCanvas().DrawFocusRect(GetFocusRect());
}

void TCustomButtonEx::DrawBackground() {
    const TCustomImageList* images = FPaintFromImageList ? GetStateImages() : nullptr;
    if (images && images->GetCount() > 0)
        DrawStateImage(*images);
    else
        DrawPushButton();
}

int TCustomButtonEx::ImageIndexOfState(int imageCount) const {
    const TButtonExState state = GetState();
    if (static_cast<int>(state) < imageCount) return static_cast<int>(state);
    return IsSunken() && static_cast<int>(bexPressed) < imageCount ? static_cast<int>(bexPressed) : 0;
}

void TCustomButtonEx::DrawStateImage(const TCustomImageList& images) {
    const int index = ImageIndexOfState(images.GetCount());
    const TRect client = GetClientRect();
    const TSize size{images.GetWidth(), images.GetHeight()};
    if (!FStretchImage || size == TSize{client.Right, client.Bottom}) {
        images.Draw(GetCanvas(), (client.Right - size.Width) / 2, (client.Bottom - size.Height) / 2, index);
        return;
    }
    TBitmap image(size.Width, size.Height);
    image.GetCanvas().GetBrush().SetColor(GetColor());
    image.GetCanvas().FillRect(TRect::OfSize(0, 0, size.Width, size.Height));
    images.Draw(image.GetCanvas(), 0, 0, index);
    GetCanvas().StretchDraw(client, &image);
}

void TCustomButtonEx::DrawPushButton() {
    TRect client = GetClientRect();
    const UINT sunken = IsSunken() ? DFCS_PUSHED : 0U;
    const UINT disabled = GetState() == bexDisabled ? DFCS_INACTIVE : 0U;
    ::DrawFrameControl(GetCanvas().GetHandle(), client.AsRect(), DFC_BUTTON,
                       DFCS_BUTTONPUSH | sunken | disabled);
    GetCanvas().Refresh();
}

}  // namespace velmora

std::span<const wchar_t* const> vcl::TEnumNames<velmora::TButtonExState>::Names() {
    static constexpr const wchar_t* names[] = {L"bexNormal",  L"bexDisabled", L"bexPressed",
                                               L"bexHovered", L"bexDown",     L"bexDownHovered"};
    return names;
}

std::span<const wchar_t* const> vcl::TEnumNames<velmora::TButtonExStyle>::Names() {
    static constexpr const wchar_t* names[] = {L"bxsPush", L"bxsToggle"};
    return names;
}
