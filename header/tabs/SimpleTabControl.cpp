#include "header/tabs/SimpleTabControl.h"

#include "header/items/HeaderItems.h"
#include "header/tabs/HoveredTabs.h"
#include "header/tabs/TabPieces.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin {
namespace {

constexpr TColor LightTab = 0x00E0DBDA;
constexpr TColor WhiteLookLine = 0x00555555;

bool IsKeyDown(int key) {
    return ::GetKeyState(key) < 0;
}

}  // namespace

const TMetaClass& TQV7SkinSimpleTabControl::StaticClass() {
    using C = TQV7SkinSimpleTabControl;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinSimpleTabControl", TQV7SkinHeaderControl::StaticClass())
            .Field(L"TabBackground", &C::TabBackground)
            .Event(L"OnQueryTabSwitch", &C::OnQueryTabSwitch);
    return meta;
}

TQV7SkinSimpleTabControl::TQV7SkinSimpleTabControl(TComponent* AOwner) : TQV7SkinHeaderControl(AOwner) {
    TQV7SkinHeaderControl::SetAllowItemDrag(true);
}

TQV7SkinSimpleTabControl::~TQV7SkinSimpleTabControl() = default;

void TQV7SkinSimpleTabControl::Loaded() {
    TQV7SkinHeaderControl::Loaded();
    LoadBitmapsFromResources();
}

void TQV7SkinSimpleTabControl::LoadBitmapsFromResources() {
    FPieces = std::make_unique<TTabPieces>(TabBackground);
    ++FLoads;
    Invalidate();
}

// --- painting

TColor TQV7SkinSimpleTabControl::GetBkColorTabDefault() const {
    return TabBackground == bckgrndWhite ? clWhite : LightTab;
}

TColor TQV7SkinSimpleTabControl::GetBkColorTabHovered() const {
    return TabBackground == bckgrndWhite ? clWhite : LightTab;
}

TColor TQV7SkinSimpleTabControl::GetBkColorTabPressed() const {
    return TabBackground == bckgrndWhite ? clWhite : clBlack;
}

void TQV7SkinSimpleTabControl::DrawBackground(TBitmap& Bitmap, int State) {
    TColor fill = GetBkColorTabDefault();
    if (State == hisHovered) fill = GetBkColorTabHovered();
    if (State == hisPressed) fill = GetBkColorTabPressed();
    TCanvas& canvas = Bitmap.GetCanvas();
    canvas.GetBrush().SetColor(fill);
    canvas.FillRect(TRect(0, 0, Bitmap.GetWidth(), Bitmap.GetHeight()));
    if (FPieces) FPieces->Draw(Bitmap, State);
}

int TQV7SkinSimpleTabControl::GetBackgroundLook() const {
    return FLoads * 2 + (TabBackground == bckgrndWhite ? 1 : 0);
}

void TQV7SkinSimpleTabControl::PaintBackground(TBitmap& Bitmap) {
    TQV7SkinHeaderControl::PaintBackground(Bitmap);
    if (TabBackground != bckgrndWhite) return;
    TCanvas& canvas = Bitmap.GetCanvas();
    canvas.GetPen().SetColor(WhiteLookLine);
    canvas.MoveTo(0, Bitmap.GetHeight() - 1);
    canvas.LineTo(Bitmap.GetWidth(), Bitmap.GetHeight() - 1);
}

void TQV7SkinSimpleTabControl::SetIndexOfItemMouseOver(int Index) {
    if (Index != GetIndexOfItemMouseOver()) RenderHoveredTabs(*this, Index);
    TQV7SkinHeaderControl::SetIndexOfItemMouseOver(Index);
}

// --- switching by keyboard

void TQV7SkinSimpleTabControl::Dispatch(TMessage& message) {
    if (message.Msg == CM_DIALOGKEY) return CmDialogKey(message);
    TQV7SkinHeaderControl::Dispatch(message);
}

void TQV7SkinSimpleTabControl::CmDialogKey(TMessage& message) {
    if (!OnQueryTabSwitch || message.CharCode() != VK_TAB || !IsKeyDown(VK_CONTROL))
        return TQV7SkinHeaderControl::Dispatch(message);
    const TLifeGuard guard(*this);
    const bool allowed = IsSwitchAllowed();
    if (!guard.IsAlive()) return;
    if (!allowed) return TQV7SkinHeaderControl::Dispatch(message);
    message.Result = 1;
    SelectNextTab(!IsKeyDown(VK_SHIFT));
}

bool TQV7SkinSimpleTabControl::IsSwitchAllowed() {
    bool allow = true;
    OnQueryTabSwitch(this, allow);
    return allow;
}

TQV7SkinHeaderItemCustom* TQV7SkinSimpleTabControl::GetNextHeaderItem(bool Forward) const {
    const TQV7SkinHeaderItems& items = GetItems();
    const int count = items.GetCount();
    const TQV7SkinHeaderItemCustom* selected = GetSelectedItem();
    int index = Forward ? count - 1 : 0;
    if (selected) index = items.IndexOf(selected);
    for (int steps = 0; steps < count; ++steps) {
        index = (index + (Forward ? 1 : count - 1)) % count;
        TQV7SkinHeaderItemCustom* item = items[index];
        if (item->GetVisible()) return item == selected ? nullptr : item;
    }
    return nullptr;
}

void TQV7SkinSimpleTabControl::SelectNextTab(bool Forward) {
    TQV7SkinHeaderItemCustom* item = GetNextHeaderItem(Forward);
    if (item && !item->GetSelected()) item->Click(mbLeft, {}, 1, 1);
}

void TQV7SkinSimpleTabControl::FocusFirstChild(TWinControl* Control) {
    for (TWinControl* child : Control->TabList()) {
        if (!child->CanFocus()) continue;
        child->SetFocus();
        return;
    }
}

}  // namespace qv7skin
