#include <algorithm>
#include <optional>
#include <utility>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/bar/WhileScope.h"
#include "explorerbar/items/ExplorerItem.h"
#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/Mouse.h"
#include "skin/surfaces/ScrolledPaintBox.h"

namespace qv7skin {
namespace {

TQV7SkinExplorerItemCustom* AsItem(TObject* object) {
    return dynamic_cast<TQV7SkinExplorerItemCustom*>(object);
}

TQV7SkinExplorerGroup* AsGroup(TObject* object) {
    return dynamic_cast<TQV7SkinExplorerGroup*>(object);
}

}  // namespace

bool TQV7SkinExplorerBar::IsCursorIn(const TRect& Rect) const {
    // Where the mouse is costs more to ask than a header costs to draw.
    if (!FPaintBox->GetMouseInClient()) return false;
    return Rect.Contains(FPaintBox->ScreenToClient(Mouse().GetCursorPos()));
}

TObject* TQV7SkinExplorerBar::GetHotArea(int X, int Y) {
    for (int i = 0; i < FGroups->GetCount(); ++i) {
        TQV7SkinExplorerGroup* group = (*FGroups)[i];
        if (!group->GetVisible()) continue;
        if (group->HeaderRect().Contains({X, Y})) return group;
        if (group->BodyRect().Contains({X, Y})) return group->ItemAt(X, Y);
    }
    return nullptr;
}

TObject* TQV7SkinExplorerBar::GetHotArea() {
    const TPoint point = ScreenToClient(Mouse().GetCursorPos());
    return GetHotArea(point.X, point.Y);
}

/// What looks different when the mouse comes or goes: a group's header, or the hot columns of one of its
/// items. It outlives the object; the group is watched.
class TQV7SkinExplorerBar::TPlace {
public:
    explicit TPlace(TObject* object) {
        if (auto* group = AsGroup(object)) {
            Set(group, group->HeaderRect());
        } else if (auto* item = AsItem(object); item && item->GetOwner()) {
            const auto [top, bottom] = item->GetOwner()->RowsOf(*item);
            const TColumns columns = item->HotColumns(item->GetOwner()->GetWidth());
            Set(item->GetOwner(), {columns.Left, top, columns.Right, bottom});
        }
    }
    [[nodiscard]] TQV7SkinExplorerGroup* Group() const {
        return FGroup && FGuard->IsAlive() ? FGroup : nullptr;
    }
    [[nodiscard]] const TRect& Rect() const { return FRect; }
    /// Takes in a neighbour in the same group; false when it is none.
    bool Join(const TPlace& other) {
        if (!Group() || other.Group() != Group()) return false;
        if (other.FRect.Top > FRect.Bottom || other.FRect.Bottom < FRect.Top) return false;
        FRect = {std::min(FRect.Left, other.FRect.Left), std::min(FRect.Top, other.FRect.Top),
                 std::max(FRect.Right, other.FRect.Right), std::max(FRect.Bottom, other.FRect.Bottom)};
        return true;
    }

private:
    void Set(TQV7SkinExplorerGroup* group, const TRect& rect) {
        FGroup = group;
        FGuard.emplace(*group);
        FRect = rect;
    }
    TQV7SkinExplorerGroup* FGroup = nullptr;
    std::optional<TLifeGuard> FGuard;
    TRect FRect;
};

void TQV7SkinExplorerBar::RepaintPlace(const TPlace& Place) {
    TQV7SkinExplorerGroup* group = Place.Group();
    if (FUpdating || !group || group->GetExBar() != this) return;
    const TWhileScope alone(*this, FPaintedAlone, group);
    FPaintBox->RepaintPart(Place.Rect());
}

void TQV7SkinExplorerBar::ShowHintOf(const TObject* Hot, int X, int Y) {
    const auto* item = dynamic_cast<const TQV7SkinExplorerItemCustom*>(Hot);
    const bool wanted = item && !item->GetHint().empty();
    AppServices().CancelHint();
    SetShowHint(wanted);
    if (!wanted) return;
    SetHint(item->GetHint());
    // The hint of this item waits from now on, even if the mouse stays where it is.
    const TPoint inWindow{X, Y - FPaintBox->SeenRows().Top};
    TMessage move{WM_MOUSEMOVE, 0, TMessage::PackPoint(inWindow), 0};
    AppServices().HintMouseMessage(FPaintBox, move);
}

/// Tells the hot object that the mouse came, and returns the cursor for it.
TCursor TQV7SkinExplorerBar::EnterHotObject() {
    TCursor cursor = crDefault;
    if (AsGroup(HotObject))
        cursor = crHandPoint;
    else if (auto* item = AsItem(HotObject))
        item->DoEnter(cursor);
    return cursor;
}

void TQV7SkinExplorerBar::PbMouseMove(TObject*, TShiftState Shift, int X, int Y) {
    const TShiftState held{ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle};
    if (!(Shift * held).IsEmpty()) return;
    // The hover image of a header's button follows the mouse.
    auto* hotGroup = AsGroup(HotObject);
    if (hotGroup && hotGroup->HeaderRect().Contains({X, Y})) return RepaintPlace(TPlace(hotGroup));
    TObject* found = GetHotArea(X, Y);
    if (found == HotObject) return;

    const TLifeGuard guard(*this);
    TObject* old = HotObject;
    TPlace former(old);
    HotObject = found;
    ShowHintOf(found, X, Y);
    if (!guard.IsAlive()) return;
    TCursor cursor = crDefault;
    if (auto* item = AsItem(old)) item->DoLeave(cursor);
    // A handler may have freed the bar or the item that the mouse came to.
    if (!guard.IsAlive()) return;
    cursor = EnterHotObject();
    if (!guard.IsAlive()) return;
    FPaintBox->SetCursor(HotObject ? cursor : crDefault);
    const TPlace present(HotObject);
    const bool joined = former.Join(present);
    RepaintPlace(former);
    if (guard.IsAlive() && !joined) RepaintPlace(present);
}

void TQV7SkinExplorerBar::PbMouseUp(TObject*, TMouseButton Button, TShiftState, int X, int Y) {
    if (Button != mbLeft) return;
    const TLifeGuard guard(*this);
    TObject* found = GetHotArea(X, Y);
    if (found && found == HotObject) {
        if (auto* group = AsGroup(found))
            group->OpenClose();
        else if (auto* item = AsItem(found))
            item->DoClick();
    }
    if (!guard.IsAlive()) return;
    // What the click left under the mouse: an item keeps the cursor that it chose when the mouse came.
    if (!HotObject)
        FPaintBox->SetCursor(crDefault);
    else if (AsGroup(HotObject))
        FPaintBox->SetCursor(crHandPoint);
    Repaint();
}

void TQV7SkinExplorerBar::MouseLeft(const TMessage& message) {
    const TLifeGuard guard(*this);
    if (TObject* old = std::exchange(HotObject, nullptr)) {
        const TPlace place(old);
        TCursor cursor = crDefault;
        if (auto* item = AsItem(old)) item->DoLeave(cursor);
        if (!guard.IsAlive()) return;
        RepaintPlace(place);
        if (!guard.IsAlive()) return;
        FPaintBox->SetCursor(crDefault);
    }
    // From the content to the ground below it the mouse has not left the bar.
    const bool fromContent = message.LParam == reinterpret_cast<LPARAM>(FPaintBox);
    if (fromContent && ::WindowFromPoint(Mouse().GetCursorPos()) == WindowHandle()) return;
    OnLeave(this);
}

}  // namespace qv7skin
