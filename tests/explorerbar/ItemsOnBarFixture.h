#pragma once

#include <memory>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "skin/surfaces/ScrolledPaintBox.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace qv7skin::probes {

/// Fixture for items in a group of a bar of 218 x 280 pixels on a form, which is shown.
class ItemsOnBarTest : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Bar = Make<TQV7SkinExplorerBar>(TRect::OfSize(10, 10, 218, 280));
        Bar->SetAnimate(false);
        Group = Bar->GetGroups().Add(L"Gruppe", false);
        Input.MoveAway();
    }

    /// Adds an item to the group and waits until the bar shows it.
    template <class Item>
    Item* Add(Item* item) {
        Group->GetItems().Add(item);
        ShowAll();
        return item;
    }
    void ShowAll() {
        Bar->NeedsMeasure = true;
        Bar->Repaint();
        test::PumpAll();
    }
    [[nodiscard]] HWND Surface() const { return Bar->GetPaintBox().GetHandle(); }
    void MoveOn(const TQV7SkinExplorerItemCustom* item) {
        const TRect place = item->ClipRect();
        Input.MoveTo(Surface(), place.Left + 2, (place.Top + place.Bottom) / 2);
    }
    void ClickOn(const TQV7SkinExplorerItemCustom* item) {
        MoveOn(item);
        Input.Click();
    }
    /// Moves within the bar to where no item is: the header of the group.
    void MoveOnHeader() { Input.MoveTo(Surface(), 40, 5); }
    /// What the place of the item shows now.
    [[nodiscard]] test::Pixels Shown(const TQV7SkinExplorerItemCustom* item) const {
        return test::ReadBitmap(Bar->GetPaintBox().GetBuffer().GetHandle()).Part(item->ClipRect());
    }

    TQV7SkinExplorerBar* Bar = nullptr;
    TQV7SkinExplorerGroup* Group = nullptr;
};

}  // namespace qv7skin::probes
