#include <gtest/gtest.h>

#include <functional>

#include "platform/vcl/controls/Drag.h"
#include "tests/header/TabFixture.h"

namespace qv7skin {
namespace {

using namespace probes;

/// A tab control that a restless user and a restless program work on at the same time.
class RandomUse : public StripTest<TQV7SkinTabControl> {
protected:
    void SetUp() override {
        StripTest::SetUp();
        Strip->Loaded();
        Strip->SetAllowItemUndock(true);
        Strip->OnQueryTabSwitch = [](TObject*, bool& allow) { allow = true; };
        for (int i = 0; i < 8; ++i)
            AddSome();
    }
    void AddSome() {
        TQV7SkinHeaderItemTabExt* tab = AddExt(L"Reiter " + std::to_wstring(++FMade));
        tab->OnUndock = [this](TQV7SkinHeaderItemCustom* item) {
            if (Next(4) == 0) delete item;
        };
        tab->OnClick = [this](TQV7SkinHeaderItemCustom* item, TMouseButton, TShiftState, int, int) {
            if (Next(8) == 0) delete item;
        };
    }
    /// A number from 0 up to, but without, `limit`; the same in each run.
    unsigned Next(unsigned limit) {
        FState = FState * 1664525U + 1013904223U;
        return (FState >> 8) % limit;
    }
    [[nodiscard]] int AnyIndex() { return static_cast<int>(Next(static_cast<unsigned>(Items().GetCount()))); }
    void MoveSomewhere() {
        Input.MoveTo(Surface(), static_cast<int>(Next(320)) - 10, static_cast<int>(Next(34)) - 6);
    }
    void ChangeAnItem() {
        if (Items().GetCount() == 0) return;
        auto* tab = dynamic_cast<TQV7SkinHeaderItemTabExt*>(Items()[AnyIndex()]);
        switch (Next(6)) {
            case 0:
                return tab->SetVisible(!tab->GetVisible());
            case 1:
                return tab->SetState({tesAnimated, tesLocked});
            case 2:
                return tab->SetSelected(Next(2) == 0);
            case 3:
                return tab->SetCaption(std::wstring(Next(20), L'x'));
            case 4:
                return tab->Close();
            default:
                return Strip->Move(Items().IndexOf(tab), AnyIndex());
        }
    }
    void Step() {
        switch (Next(12)) {
            case 0:
                return Input.Press();
            case 1:
                return Input.Release();
            case 2:
                return Input.KeyPress(VK_ESCAPE);
            case 3:
                return Input.Chord({VK_CONTROL}, VK_TAB);
            case 4:
                return ChangeAnItem();
            case 5:
                return AddSome();
            case 6:
                return Strip->ScrollBy(static_cast<int>(Next(5)) - 2);
            case 7:
                return Strip->SetHeight(static_cast<int>(Next(3)) * 10 + 14);
            default:
                return MoveSomewhere();
        }
    }

private:
    unsigned FState = 20;
    int FMade = 0;
};

TEST_F(RandomUse, LeavesTheControlInOrder) {
    for (int step = 0; step < 500; ++step) {
        Step();
        const int count = Items().GetCount();
        ASSERT_LT(Strip->GetIndexOfItemMouseOver(), std::max(count, 1)) << step;
        ASSERT_TRUE(count == 0 || Strip->GetFirstVisibleIndex() < count) << step;
        ASSERT_FALSE(Strip->GetUpdating()) << step;
        int selected = 0;
        for (int i = 0; i < count; ++i)
            selected += Items()[i]->GetSelected();
        ASSERT_LE(selected, 1) << step;
    }
    Input.Release();
    CancelDrag();
    EXPECT_TRUE(Errors.empty());
    EXPECT_EQ(vcl::GetDragObject(), nullptr);
}

}  // namespace
}  // namespace qv7skin
