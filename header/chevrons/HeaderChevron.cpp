#include "header/chevrons/HeaderChevron.h"

#include "header/control/HeaderControl.h"
#include "platform/vcl/controls/ContextMenu.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/surfaces/Loaders.h"

namespace qv7skin {
namespace {

constexpr int Gap = 2;
constexpr TColor FrameColor = 0x00555555;

}  // namespace

const TMetaClass& TQV7SkinHeaderChevron::StaticClass() {
    static const TMetaClass meta = DefineClass<TQV7SkinHeaderChevron>(
        L"TQV7SkinHeaderChevron", TQV7SkinHeaderChevronBase::StaticClass());
    return meta;
}

TQV7SkinHeaderChevron::TQV7SkinHeaderChevron(TQV7SkinHeaderControl* AOwner)
    : TQV7SkinHeaderChevronBase(AOwner),
      FTop(CreateBmp(L"EXPLORERBARHEADERTOP")),
      FBottom(CreateBmp(L"EXPLORERBARHEADERBOTTOM")) {
    const String buttons[ButtonCount] = {L"CHEVRONBUTTONDOWN", L"CHEVRONBUTTONLEFT", L"CHEVRONBUTTONRIGHT"};
    const String suffixes[] = {L"DEFAULT", L"HOVERED", L"DISABLED"};
    for (std::size_t button = 0; button < ButtonCount; ++button)
        for (std::size_t picture = 0; picture < std::size(suffixes); ++picture)
            FButtons[button][picture] = CreateTransparentBmp(buttons[button] + suffixes[picture]);
    SetDoubleBuffered(true);
    const int width = FButtons[cbDropDown][cpDefault]->GetWidth() * ButtonCount + (ButtonCount + 1) * Gap + 2;
    SetBounds(0, 0, width, FTop->GetHeight() + 2 + FBottom->GetHeight());
}

TQV7SkinHeaderChevron::~TQV7SkinHeaderChevron() = default;

TQV7SkinHeaderControl* TQV7SkinHeaderChevron::GetHeaderControl() const {
    return static_cast<TQV7SkinHeaderControl*>(GetOwner());
}

TRect TQV7SkinHeaderChevron::GetButtonRect(int Button) const {
    int left = Gap;
    for (int i = 0; i < Button; ++i)
        left += FButtons[static_cast<std::size_t>(i)][cpDefault]->GetWidth() + Gap;
    const TTransparentBitmap& picture = *FButtons[static_cast<std::size_t>(Button)][cpDefault];
    const int top = (GetClientHeight() - picture.GetHeight()) / 2;
    return TRect::OfSize(left, top, picture.GetWidth(), picture.GetHeight());
}

int TQV7SkinHeaderChevron::MouseInButton() const {
    if (!HandleAllocated()) return -1;
    const TPoint pointer = ScreenToClient(Mouse().GetCursorPos());
    for (int button = 0; button < ButtonCount; ++button)
        if (GetButtonRect(button).Contains(pointer)) return button;
    return -1;
}

// --- painting

TQV7SkinHeaderChevron::TPicture TQV7SkinHeaderChevron::PictureOf(int Button, int Hovered) const {
    if (Button == cbLeft && !GetHeaderControl()->CanScrollPrior()) return cpDisabled;
    if (Button == cbRight && !GetHeaderControl()->CanScrollNext()) return cpDisabled;
    return Button == Hovered ? cpHovered : cpDefault;
}

void TQV7SkinHeaderChevron::DoFFPaint() {
    TCanvas& canvas = GetBuffer().GetCanvas();
    const TRect client = GetClientRect();
    canvas.SetCopyMode(cmSrcCopy);  // transparent bitmaps leave another one behind
    canvas.GetBrush().SetColor(GetQV7SkinColorBackground());
    canvas.FillRect(client);
    const int width = GetWidth() - 2;
    canvas.StretchDraw(TRect::OfSize(1, 1, width, FTop->GetHeight()), FTop.get());
    const int bottomTop = GetHeight() - FBottom->GetHeight() - 1;
    canvas.StretchDraw(TRect::OfSize(1, bottomTop, width, FBottom->GetHeight()), FBottom.get());

    const int hovered = GetMouseInClient() ? MouseInButton() : -1;  // asking for the pointer is expensive
    for (int button = 0; button < ButtonCount; ++button) {
        const TPicture picture = PictureOf(button, hovered);
        FButtons[static_cast<std::size_t>(button)][picture]->DrawCentered(canvas, GetButtonRect(button), 0);
    }
    canvas.GetBrush().SetColor(FrameColor);
    canvas.FrameRect(client);
    TQV7SkinHeaderChevronBase::DoFFPaint();
}

// --- the mouse

void TQV7SkinHeaderChevron::MouseMove(TShiftState Shift, int X, int Y) {
    const TLifeGuard guard(*this);
    TQV7SkinHeaderChevronBase::MouseMove(Shift, X, Y);
    if (guard.IsAlive()) Refresh();
    if (guard.IsAlive()) SetCursor(MouseInButton() >= 0 ? crHandPoint : crDefault);
}

void TQV7SkinHeaderChevron::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    TQV7SkinHeaderChevronBase::Dispatch(message);
    if (message.Msg != CM_MOUSELEAVE || !guard.IsAlive()) return;
    SetCursor(crDefault);
    Refresh();
}

void TQV7SkinHeaderChevron::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) {
    const TLifeGuard guard(*this);
    PressButton(MouseInButton(), Shift);
    if (guard.IsAlive()) TQV7SkinHeaderChevronBase::MouseDown(Button, Shift, X, Y);
}

void TQV7SkinHeaderChevron::PressButton(int Button, TShiftState Shift) {
    const bool farthest = Shift.Contains(ssCtrl);
    if (Button == cbDropDown)
        DoDropDown();
    else if (Button == cbLeft && GetHeaderControl()->CanScrollPrior())
        farthest ? DoFirst() : DoPrior();
    else if (Button == cbRight && GetHeaderControl()->CanScrollNext())
        farthest ? DoLast() : DoNext();
}

void TQV7SkinHeaderChevron::DoDropDown() {
    TContextMenu* const menu = GetHeaderControl()->GetChevronDropDown();
    if (!menu) return;
    const TPoint pointer = Mouse().GetCursorPos();
    menu->Popup(pointer.X, pointer.Y);
}

void TQV7SkinHeaderChevron::DoFirst() {
    GetHeaderControl()->ScrollFirst();
}

void TQV7SkinHeaderChevron::DoLast() {
    GetHeaderControl()->ScrollLast();
}

void TQV7SkinHeaderChevron::DoPrior() {
    GetHeaderControl()->ScrollBy(-1);
}

void TQV7SkinHeaderChevron::DoNext() {
    GetHeaderControl()->ScrollBy(1);
}

}  // namespace qv7skin
