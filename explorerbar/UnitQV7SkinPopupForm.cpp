#include "explorerbar/UnitQV7SkinPopupForm.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Font.h"

std::span<const wchar_t* const> vcl::TEnumNames<qv7skin::TPopupResizeDirection>::Names() {
    static constexpr const wchar_t* names[] = {L"rdLeft", L"rdRight", L"rdBottom"};
    return names;
}

namespace qv7skin {
namespace {

/// Pixels from the edge within which the pointer sizes; the left edge is one wider for the corner below it.
constexpr int SizingZone = 4;
constexpr int LeftZone = 5;

constexpr WPARAM SizeLeft = SC_SIZE + 1;
constexpr WPARAM SizeRight = SC_SIZE + 2;
constexpr WPARAM SizeBottom = SC_SIZE + 6;
constexpr WPARAM SizeBottomLeft = SC_SIZE + 7;
constexpr WPARAM SizeBottomRight = SC_SIZE + 8;

/// Every popup form there is.
std::vector<TQV7SkinPopupForm*>& PopupForms() {
    static std::vector<TQV7SkinPopupForm*> forms;
    return forms;
}

}  // namespace

const TMetaClass& TQV7SkinPopupForm::StaticClass() {
    using C = TQV7SkinPopupForm;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinPopupForm", TfrmQV7SkinPopupFormBase::StaticClass())
            .Property(L"ResizeDirection", &C::GetResizeDirection, &C::SetResizeDirection,
                      TPopupResizeDirections{rdRight, rdBottom})
            .Property(L"ShowPopupWithMargin", &C::GetShowPopupWithMargin, &C::SetShowPopupWithMargin, false)
            .Property(L"PopupMargin", &C::GetPopupMargin, &C::SetPopupMargin, 3);
    return meta;
}

TQV7SkinPopupForm::TQV7SkinPopupForm(TComponent* AOwner)
    : TfrmQV7SkinPopupFormBase(AOwner), FApplicationEvents(std::make_unique<TApplicationEvents>(nullptr)) {
    SetBorderStyle(bsNone);
    SetColor(0x00FFFFFF);
    GetFont().SetColor(0x00000000);
    SetDoubleBuffered(true);
    imgCloseWindow->SetBounds(GetWidth() - 20, 4, imgCloseWindow->GetWidth(), imgCloseWindow->GetHeight());
    const int top = imgCloseWindow->GetTop();
    imgIncludeWindow->SetLeft(imgCloseWindow->GetLeft() - 2);
    imgIncludeWindow->SetTop(top);
    imgExcludeWindow->SetLeft(GetWidth() - 40);
    imgExcludeWindow->SetTop(top);
    PopupForms().push_back(this);
}

TQV7SkinPopupForm::~TQV7SkinPopupForm() {
    std::erase(PopupForms(), this);
}

// --- showing and closing

void TQV7SkinPopupForm::ShowAtControl(TControl* Control) {
    ShowAtControl(Control, 0, Control->GetHeight());
}

void TQV7SkinPopupForm::ShowAtControl(TControl* Control, TPoint Point) {
    ShowAtControl(Control, Point.X, Point.Y);
}

void TQV7SkinPopupForm::ShowAtControl(TControl* Control, int X, int Y) {
    const TLifeGuard guard(*this);
    const TLifeGuard controlGuard(*Control);
    const int margin = FShowPopupWithMargin ? FPopupMargin : 0;
    const TPoint place = Control->ClientToScreen({X, FShowPopupWithMargin ? Y - 1 : Y});
    SetBounds(place.X + margin, place.Y, std::max(GetWidth(), Control->GetWidth() - 2 * margin), GetHeight());
    Show();
    if (!guard.IsAlive() || !controlGuard.IsAlive()) return;
    TParentForm* form = GetParentForm(Control);
    if (form && form->FormControl().HandleAllocated())
        ::SendMessageW(form->FormControl().WindowHandle(), WM_NCACTIVATE, TRUE, 0);
}

void TQV7SkinPopupForm::Deactivate() {
    const TLifeGuard guard(*this);
    TfrmQV7SkinPopupFormBase::Deactivate();
    // A window that is made anew loses the activation for a moment, too.
    if (guard.IsAlive() && !GetShowBorder() && !IsControlState(csRecreating)) Close();
}

void TQV7SkinPopupForm::ApplicationEventsDeactivate(TObject*) {
    Close();
}

bool TQV7SkinPopupForm::CloseQuery() {
    return TfrmQV7SkinPopupFormBase::CloseQuery();
}

void CloseFormsAttachedTo(const TCustomForm* Form) {
    // Handlers of the closing may free popups or make new ones.
    const std::vector<TQV7SkinPopupForm*> present = PopupForms();
    for (TQV7SkinPopupForm* popup : present) {
        if (std::ranges::find(PopupForms(), popup) == PopupForms().end()) continue;
        if (popup->GetAttachedTo() == Form && popup->GetVisible()) popup->Close();
    }
}

// --- sizing by the edges

TCursor TQV7SkinPopupForm::SizingCursorAt(int x, int y) const {
    const bool left = FResizeDirection.Contains(rdLeft);
    const bool right = FResizeDirection.Contains(rdRight);
    const bool bottom = FResizeDirection.Contains(rdBottom);
    const auto corner = [bottom](bool side, TCursor diagonal) {
        if (bottom && side) return diagonal;
        if (bottom) return crSizeNS;
        return side ? crSizeWE : crDefault;
    };
    const bool atRight = x >= GetClientWidth() - SizingZone;
    const bool atBottom = y >= GetClientHeight() - SizingZone;
    if (atRight && atBottom) return corner(right, crSizeNWSE);
    if (x < LeftZone && atBottom) return corner(left, crSizeNESW);
    if (atRight && right) return crSizeWE;
    if (atBottom && bottom) return crSizeNS;
    if (x < LeftZone && left) return crSizeWE;
    return crDefault;
}

/// The system command that begins the sizing that the cursor announces, or 0.
WPARAM TQV7SkinPopupForm::SizingCommand() const {
    switch (GetCursor()) {
        case crSizeWE:
            return FResizeDirection.Contains(rdRight) ? SizeRight : SizeLeft;
        case crSizeNWSE:
            return SizeBottomRight;
        case crSizeNS:
            return SizeBottom;
        case crSizeNESW:
            return SizeBottomLeft;
        default:
            return 0;
    }
}

void TQV7SkinPopupForm::MouseMove(TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TfrmQV7SkinPopupFormBase::MouseMove(shift, x, y);
    if (guard.IsAlive()) SetCursor(SizingCursorAt(x, y));
}

void TQV7SkinPopupForm::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TfrmQV7SkinPopupFormBase::MouseDown(button, shift, x, y);
    if (!guard.IsAlive()) return;
    ::ReleaseCapture();
    if (const WPARAM command = SizingCommand(); command != 0 && HandleAllocated())
        ::SendMessageW(WindowHandle(), WM_SYSCOMMAND, command, 0);
}

}  // namespace qv7skin
