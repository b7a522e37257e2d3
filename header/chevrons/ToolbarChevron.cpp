#include "header/chevrons/ToolbarChevron.h"

#include "header/control/HeaderControl.h"
#include "header/toolbar/ToolbarPieces.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/menus/PopupMenu.h"
#include "skin/surfaces/Loaders.h"
#include "skin/utils/OneShotDrawing.h"
#include "skin/utils/RectHelper.h"

namespace qv7skin {
namespace {

constexpr int ChevronWidth = 15;

}  // namespace

const TMetaClass& TQV7SkinToolbarChevron::StaticClass() {
    static const TMetaClass meta = DefineClass<TQV7SkinToolbarChevron>(
        L"TQV7SkinToolbarChevron", TQV7SkinHeaderChevronBase::StaticClass());
    return meta;
}

TQV7SkinToolbarChevron::TQV7SkinToolbarChevron(TQV7SkinHeaderControl* AToolbar,
                                               std::shared_ptr<const TToolbarPieces> APieces)
    : TQV7SkinHeaderChevronBase(AToolbar),
      FToolbar(AToolbar),
      FPieces(std::move(APieces)),
      FBackground(std::make_unique<TBitmap>()),
      FButton(CreateBmp(L"TOOLBUTTONCHEVRONBUTTON")) {
    FBackground->SetPixelFormat(pf24bit);
    SetVisible(false);
    SetBounds(0, 0, ChevronWidth, AToolbar->GetHeight());
}

TQV7SkinToolbarChevron::~TQV7SkinToolbarChevron() = default;

/// Takes the toolbar's height, and puts the arrows in the middle of it.
void TQV7SkinToolbarChevron::TakePlace() {
    SetHeight(FToolbar->GetHeight());
    const TRect arrows(0, 0, FButton->GetWidth(), FButton->GetHeight());
    FButtonRect = TRectHelper::CenterRectInRect(GetClientRect(), arrows, {crtHorizontal, crtVertical});
    ++FButtonRect.Left;
    ++FButtonRect.Right;
}

void TQV7SkinToolbarChevron::Resize() {
    FImageState = isNone;  // what was rendered has another size
    TQV7SkinHeaderChevronBase::Resize();
}

// --- painting

void TQV7SkinToolbarChevron::RefreshImage(TImageState State) {
    if (State == FImageState) return;
    FImageState = State;
    FBackground->SetSize(GetWidth(), GetHeight());
    if (State == isPressed) {
        TCanvas& canvas = FBackground->GetCanvas();
        const TBitmap& left = FPieces->GetPiece(TToolbarPieces::psPressed, TToolbarPieces::tpLeft);
        const TBitmap& center = FPieces->GetPiece(TToolbarPieces::psPressed, TToolbarPieces::tpCenter);
        canvas.StretchDraw({0, 0, left.GetWidth(), GetHeight()}, &left);
        canvas.StretchDraw({left.GetWidth(), 0, GetWidth(), GetHeight()}, &center);
        return;
    }
    FPieces->DrawButton(*FBackground, State == isHovered ? 1 : 0);
    if (State != isNormal) return;
    const std::unique_ptr<TBitmap> separator = CreateBmp(L"TOOLBUTTONCHEVRONLEFT");
    FBackground->GetCanvas().StretchDraw({0, 0, separator->GetWidth(), GetHeight()}, separator.get());
}

void TQV7SkinToolbarChevron::ShowImage(TImageState State) {
    RefreshImage(State);
    Repaint();
}

void TQV7SkinToolbarChevron::DoFFPaint() {
    if (FImageState == isNone) RefreshImage(isNormal);
    TCanvas& canvas = GetBuffer().GetCanvas();
    canvas.Draw(0, 0, FBackground.get());
    DrawTransparentBitmap(canvas, FButton.get(), FButtonRect.Left, FButtonRect.Top, clFuchsia);
    TQV7SkinHeaderChevronBase::DoFFPaint();
}

// --- the mouse

bool TQV7SkinToolbarChevron::IsMouseInside() const {
    return HandleAllocated() && GetClientRect().Contains(ScreenToClient(Mouse().GetCursorPos()));
}

void TQV7SkinToolbarChevron::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    TQV7SkinHeaderChevronBase::Dispatch(message);
    if (!guard.IsAlive()) return;
    if (message.Msg == CM_VISIBLECHANGED && GetVisible()) TakePlace();
    if (message.Msg == CM_MOUSELEAVE && FImageState != isNormal) ShowImage(isNormal);
}

void TQV7SkinToolbarChevron::MouseMove(TShiftState Shift, int X, int Y) {
    const TLifeGuard guard(*this);
    TQV7SkinHeaderChevronBase::MouseMove(Shift, X, Y);
    if (guard.IsAlive() && FImageState != isHovered) ShowImage(isHovered);
}

void TQV7SkinToolbarChevron::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) {
    const TLifeGuard guard(*this);
    TQV7SkinHeaderChevronBase::MouseDown(Button, Shift, X, Y);
    if (!guard.IsAlive()) return;
    ShowImage(isPressed);
    if (FToolbar->GetChevronDropDown()) OpenMenu();
}

void TQV7SkinToolbarChevron::OpenMenu() {
    TContextMenu* const menu = FToolbar->GetChevronDropDown();
    if (auto* const popup = dynamic_cast<TPopupMenu*>(menu)) popup->SetAlignment(paRight);
    const TPoint corner = ClientToScreen({GetWidth(), GetHeight()});
    const TLifeGuard guard(*this);
    menu->Popup(corner.X, corner.Y);
    if (guard.IsAlive()) ShowImage(IsMouseInside() ? isHovered : isNormal);
}

}  // namespace qv7skin
