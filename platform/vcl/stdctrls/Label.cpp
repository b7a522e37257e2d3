#include "platform/vcl/stdctrls/Label.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/DeviceContexts.h"

namespace vcl {
namespace {

/// Lends a canvas a device context, so that a label can measure its text before it stands in any window.
class TLentScreen {
public:
    explicit TLentScreen(TCanvas& canvas) : FCanvas(canvas), FScreen(nullptr) {
        FCanvas.SetHandle(FScreen.Get());
    }
    ~TLentScreen() { FCanvas.SetHandle(nullptr); }
    TLentScreen(const TLentScreen&) = delete;
    TLentScreen& operator=(const TLentScreen&) = delete;

private:
    TCanvas& FCanvas;
    TWindowDC FScreen;
};

}  // namespace

const TMetaClass& TCustomLabel::StaticClass() {
    static const TMetaClass meta = DefineClass<TCustomLabel>(L"TCustomLabel", TGraphicControl::StaticClass());
    return meta;
}

TCustomLabel::TCustomLabel(TComponent* AOwner) : TGraphicControl(AOwner) {
    ControlStyle = ControlStyle + TControlStyle{csReplicatable};
    SetBounds(0, 0, 65, 17);
    SetAutoSize(true);
}

void TCustomLabel::SetAlignment(TAlignment value) {
    if (value == FAlignment) return;
    FAlignment = value;
    Invalidate();
}

void TCustomLabel::SetLayout(TTextLayout value) {
    if (value == FLayout) return;
    FLayout = value;
    Invalidate();
}

void TCustomLabel::SetWordWrap(bool value) {
    if (value == FWordWrap) return;
    FWordWrap = value;
    FollowText();
}

void TCustomLabel::SetShowAccelChar(bool value) {
    if (value == FShowAccelChar) return;
    FShowAccelChar = value;
    FollowText();
}

void TCustomLabel::SetFocusControl(TWinControl* value) {
    if (value == FFocusControl) return;
    if (FFocusControl) FFocusControl->RemoveFreeNotification(this);
    FFocusControl = value;
    if (value) value->FreeNotification(this);
}

bool TCustomLabel::GetTransparent() const {
    return !ControlStyle.Contains(csOpaque);
}

void TCustomLabel::SetTransparent(bool value) {
    if (value == GetTransparent()) return;
    ControlStyle.Put(csOpaque, !value);
    Invalidate();
}

void TCustomLabel::SetEllipsisPosition(TEllipsisPosition value) {
    if (value == FEllipsisPosition) return;
    FEllipsisPosition = value;
    if (value != epNone) SetAutoSize(false);
    Invalidate();
}

void TCustomLabel::Notification(TComponent* component, TOperation operation) {
    TGraphicControl::Notification(component, operation);
    if (operation == opRemove && component == FFocusControl) FFocusControl = nullptr;
}

void TCustomLabel::Loaded() {
    TGraphicControl::Loaded();
    AdjustBounds();
}

void TCustomLabel::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    switch (message.Msg) {
        case CM_TEXTCHANGED:
        case CM_FONTCHANGED:
            TGraphicControl::Dispatch(message);
            if (guard.IsAlive()) FollowText();
            break;
        case CM_DIALOGCHAR:
            if (IsAccelFor(message)) {
                message.Result = 1;
                FFocusControl->SetFocus();
            } else {
                TGraphicControl::Dispatch(message);
            }
            break;
        default:
            TGraphicControl::Dispatch(message);
    }
}

bool TCustomLabel::IsAccelFor(const TMessage& message) const {
    return FFocusControl && GetEnabled() && FShowAccelChar && FFocusControl->CanFocus() &&
           IsAccel(static_cast<wchar_t>(message.CharCode()), GetCaption());
}

/// After a change of what the text needs: the size first, then the picture.
void TCustomLabel::FollowText() {
    AdjustBounds();
    Invalidate();
}

void TCustomLabel::AdjustBounds() {
    if (!GetAutoSize() || IsInState(csReading) || IsInState(csLoading)) return;
    const TRect needed = NeededRect(GetWidth());
    const int left = FAlignment == taRightJustify ? GetLeft() + GetWidth() - needed.Width() : GetLeft();
    SetBounds(left, GetTop(), needed.Width(), needed.Height());
}

TRect TCustomLabel::NeededRect(int width) {
    const TLentScreen screen(GetCanvas());
    TRect rect{0, 0, width, 0};
    DoDrawText(rect, TextFlags() | DT_CALCRECT);
    return rect;
}

unsigned TCustomLabel::TextFlags() const {
    return DT_EXPANDTABS | AlignmentToDrawText(FAlignment) | (FWordWrap ? unsigned{DT_WORDBREAK} : 0U) |
           (FShowAccelChar ? 0U : unsigned{DT_NOPREFIX});
}

void TCustomLabel::DoDrawText(TRect& rect, unsigned flags) {
    String text = GetLabelText();
    const bool measuring = (flags & DT_CALCRECT) != 0;
    // A label without text keeps the height of a line.
    if (measuring && (text.empty() || (FShowAccelChar && text == L"&"))) text += L' ';
    // What is measured for dots would be cut already.
    if (!measuring) flags |= EllipsisToDrawText(FEllipsisPosition);
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    if (!GetEnabled()) canvas.GetFont().SetColor(clGrayText);
    canvas.TextRect(rect, text, flags);
}

void TCustomLabel::Paint() {
    TCanvas& canvas = GetCanvas();
    TRect rect = GetClientRect();
    if (!GetTransparent()) {
        canvas.GetBrush().SetStyle(bsSolid);
        canvas.GetBrush().SetColor(GetColor());
        canvas.FillRect(rect);
    }
    canvas.GetBrush().SetStyle(bsClear);
    if (FLayout != tlTop) {
        TRect needed{0, 0, rect.Width(), 0};
        DoDrawText(needed, TextFlags() | DT_CALCRECT);
        const int free = rect.Height() - needed.Height();
        rect.Offset(0, FLayout == tlBottom ? free : free / 2);
    }
    DoDrawText(rect, TextFlags());
}

const TMetaClass& TLabel::StaticClass() {
    using C = TLabel;
    static const TMetaClass meta =
        DefineClass<C>(L"TLabel", TCustomLabel::StaticClass())
            .With(PlacementRows)
            .With(ParentColorRows)
            .With(FontRows)
            .With(StateRows)
            .Property(L"Alignment", &C::GetAlignment, &C::SetAlignment, taLeftJustify)
            .Property(L"AutoSize", &C::GetAutoSize, &C::SetAutoSize, true)
            .Property(L"Caption", &C::GetCaption, &C::SetCaption)
            .Stored(&C::IsCaptionStored)
            .Property(L"EllipsisPosition", &C::GetEllipsisPosition, &C::SetEllipsisPosition, epNone)
            .Property(L"FocusControl", &C::GetFocusControl, &C::SetFocusControl)
            .Property(L"Layout", &C::GetLayout, &C::SetLayout, tlTop)
            .Property(L"ShowAccelChar", &C::GetShowAccelChar, &C::SetShowAccelChar, true)
            .Property(L"Transparent", &C::GetTransparent, &C::SetTransparent, true)
            .Property(L"WordWrap", &C::GetWordWrap, &C::SetWordWrap, false)
            .With(DragRows)
            .With(MouseRows)
            .With(DragEventRows);
    return meta;
}

}  // namespace vcl
