// Keys and the wheel choose among the nodes while the tree is closed.
#include "platform/velmora/OwnAdvTreeComboBoxEx.h"

#include <algorithm>

namespace velmora {

/// The node so many ones that show after the chosen one, or the last one on the way there.
TTreeNode* TOwnAdvTreeComboBoxEx::NodeAfter(int steps) const {
    TTreeNode* node = GetSelected();
    if (!node) return GetTreeItems().GetFirstNode();
    for (; steps != 0; steps += steps > 0 ? -1 : 1) {
        TTreeNode* next = steps > 0 ? node->GetNextVisible() : node->GetPrevVisible();
        if (!next) break;
        node = next;
    }
    return node;
}

TTreeNode* TOwnAdvTreeComboBoxEx::NodeForKey(WORD key) const {
    const int all = GetTreeItems().GetCount();
    const int page = std::max(FDropDownCount - 1, 1);
    if (key == VK_UP) return NodeAfter(-1);
    if (key == VK_DOWN) return NodeAfter(1);
    if (HasEditor()) return nullptr;
    switch (key) {
        case VK_PRIOR:
            return NodeAfter(-page);
        case VK_NEXT:
            return NodeAfter(page);
        case VK_HOME:
            return NodeAfter(-all);
        case VK_END:
            return NodeAfter(all);
        default:
            return nullptr;
    }
}

/// The next node that shows and begins with the letter, round the end.
TTreeNode* TOwnAdvTreeComboBoxEx::NodeForLetter(wchar_t letter) const {
    TTreeNode* first = GetTreeItems().GetFirstNode();
    TTreeNode* start = GetSelected();
    const auto fits = [letter](const TTreeNode* node) {
        return CompareText(StringView(node->GetText()).substr(0, 1), {&letter, 1}) == 0;
    };
    for (TTreeNode* node = start ? start->GetNextVisible() : first; node; node = node->GetNextVisible())
        if (fits(node)) return node;
    for (TTreeNode* node = first; node && node != start; node = node->GetNextVisible())
        if (fits(node)) return node;
    return nullptr;
}

void TOwnAdvTreeComboBoxEx::KeyDown(WORD& key, TShiftState shift) {
    const TLifeGuard guard(*this);
    TCustomControl::KeyDown(key, shift);
    if (!guard.IsAlive()) return;
    const bool alt = shift.Contains(ssAlt);
    if (alt ? key == VK_DOWN || key == VK_UP : key == VK_F4) {
        key = 0;
        return SetDroppedDown(true);
    }
    if (alt || shift.Contains(ssCtrl) || shift.Contains(ssShift)) return;
    TTreeNode* node = NodeForKey(key);
    if (!node) return;
    key = 0;
    Choose(node);
}

void TOwnAdvTreeComboBoxEx::KeyPress(wchar_t& key) {
    const TLifeGuard guard(*this);
    TCustomControl::KeyPress(key);
    if (!guard.IsAlive()) return;
    const wchar_t pressed = key;
    // The editor would beep at them.
    if (!HasEditor() || pressed == VK_RETURN || pressed == VK_ESCAPE) key = 0;
    if (!HasEditor() && pressed >= L' ') Choose(NodeForLetter(pressed));
}

bool TOwnAdvTreeComboBoxEx::DoMouseWheelDown(TShiftState shift, TPoint mousePos) {
    const TLifeGuard guard(*this);
    if (TCustomControl::DoMouseWheelDown(shift, mousePos) || !guard.IsAlive()) return true;
    if (!Focused()) return false;
    Choose(NodeAfter(1));
    return true;
}

bool TOwnAdvTreeComboBoxEx::DoMouseWheelUp(TShiftState shift, TPoint mousePos) {
    const TLifeGuard guard(*this);
    if (TCustomControl::DoMouseWheelUp(shift, mousePos) || !guard.IsAlive()) return true;
    if (!Focused()) return false;
    Choose(NodeAfter(-1));
    return true;
}

}  // namespace velmora
