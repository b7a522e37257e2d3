#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/header/TabFixture.h"

namespace qv7skin {
namespace {

using namespace probes;

/// Tabs A to D of which B is invisible, and an edit that has the focus.
class TabSwitching : public StripTest<TQV7SkinSimpleTabControl> {
protected:
    void SetUp() override {
        StripTest::SetUp();
        Strip->Loaded();
        for (const wchar_t* caption : {L"A", L"B", L"C", L"D"}) {
            TQV7SkinHeaderItemTab* tab = AddTab(caption);
            tab->OnClick = [this](TQV7SkinHeaderItemCustom* item, TMouseButton button, TShiftState shift,
                                  int x, int y) {
                Clicked += item->GetCaption();
                EXPECT_EQ(button, mbLeft);
                EXPECT_TRUE(shift.IsEmpty());
                EXPECT_EQ(x, 1);
                EXPECT_EQ(y, 1);
            };
        }
        Items()[1]->SetVisible(false);
        Edit = Make<TEdit>({20, 100, 120, 121});
        Edit->SetFocus();
    }
    void Allow(bool value) {
        Strip->OnQueryTabSwitch = [this, value](TObject*, bool& allow) {
            ++Asked;
            EXPECT_TRUE(allow);
            allow = value;
        };
    }
    [[nodiscard]] std::wstring Selected() const {
        const TQV7SkinHeaderItemCustom* item = Strip->GetSelectedItem();
        return item ? item->GetCaption() : L"";
    }
    void Forward() { Input.Chord({VK_CONTROL}, VK_TAB); }
    void Backward() { Input.Chord({VK_CONTROL, VK_SHIFT}, VK_TAB); }

    TEdit* Edit = nullptr;
    int Asked = 0;
    std::wstring Clicked;
};

TEST_F(TabSwitching, NothingHappensWithoutAHandler) {
    Items()[0]->SetSelected(true);
    Forward();
    EXPECT_EQ(Selected(), L"A");
    EXPECT_EQ(Clicked, L"");
}

TEST_F(TabSwitching, WalksTheVisibleTabsRoundTheEnd) {
    Allow(true);
    Items()[0]->SetSelected(true);
    Forward();
    EXPECT_EQ(Selected(), L"C") << "B is invisible";
    Forward();
    Forward();
    EXPECT_EQ(Selected(), L"A");
    EXPECT_EQ(Clicked, L"CDA") << "each switch is a click";
    EXPECT_EQ(Asked, 3);
    EXPECT_TRUE(Edit->Focused()) << "the key was used up";
}

TEST_F(TabSwitching, WalksBackwardsFromTheFirstToTheLastVisible) {
    Allow(true);
    Items()[3]->SetVisible(false);
    Items()[0]->SetSelected(true);
    Backward();
    EXPECT_EQ(Selected(), L"C");
    Backward();
    EXPECT_EQ(Selected(), L"A");
}

TEST_F(TabSwitching, WithNoneSelectedTheFirstVisibleOneComes) {
    Allow(true);
    Items()[0]->SetVisible(false);
    Forward();
    EXPECT_EQ(Selected(), L"C");
}

TEST_F(TabSwitching, ASingleTabIsSelectedToo) {
    Allow(true);
    for (const int i : {0, 3})
        Items()[i]->SetVisible(false);
    Forward();
    EXPECT_EQ(Selected(), L"C");
    Forward();
    EXPECT_EQ(Clicked, L"C") << "selected already";
}

TEST_F(TabSwitching, ARefusalLeavesTheKeyToTheForm) {
    Allow(false);
    Items()[0]->SetSelected(true);
    Forward();
    EXPECT_EQ(Asked, 1);
    EXPECT_EQ(Selected(), L"A");
}

/// Counts the dialog keys that it is asked about.
class TKeyProbe : public TPanel {
public:
    using TPanel::TPanel;
    int Keys = 0;

protected:
    void Dispatch(TMessage& message) override {
        Keys += message.Msg == CM_DIALOGKEY;
        TPanel::Dispatch(message);
    }
};

TEST_F(TabSwitching, ARefusedKeyReachesWhatStandsOnTheStrip) {
    const auto* const child = Make<TKeyProbe>({280, 0, 300, 20}, Strip);
    Allow(true);
    Forward();
    EXPECT_EQ(child->Keys, 0) << "the key was used up";
    Allow(false);
    Forward();
    EXPECT_EQ(child->Keys, 1);
}

TEST_F(TabSwitching, TabAloneMovesTheFocus) {
    Allow(true);
    auto* other = Make<TEdit>({20, 130, 120, 151});
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(other->Focused());
    EXPECT_EQ(Asked, 0);
}

TEST_F(TabSwitching, TheHandlerMayFreeTheControl) {
    Strip->OnQueryTabSwitch = [this](TObject*, bool&) { std::exchange(Strip, nullptr)->Free(); };
    Forward();
    EXPECT_EQ(Strip, nullptr);
}

TEST_F(TabSwitching, TheNextItemOfAnEmptyRowIsNone) {
    Items().Clear();
    EXPECT_EQ(Strip->GetNextHeaderItem(true), nullptr);
    EXPECT_EQ(Strip->GetNextHeaderItem(false), nullptr);
    Strip->SelectNextTab(true);
    EXPECT_EQ(Strip->GetSelectedItem(), nullptr);
}

TEST_F(TabSwitching, TheNextItemOfInvisibleTabsIsNone) {
    Items()[0]->SetSelected(true);
    for (int i = 1; i < Items().GetCount(); ++i)
        Items()[i]->SetVisible(false);
    EXPECT_EQ(Strip->GetNextHeaderItem(true), nullptr) << "the walk came back to its start";
}

TEST_F(TabSwitching, TheFirstChildThatCanGetsTheFocus) {
    auto* page = Make<TPanel>({20, 160, 380, 290});
    auto* disabled = Make<TEdit>({0, 0, 50, 20}, page);
    auto* first = Make<TEdit>({0, 30, 50, 50}, page);
    Make<TEdit>({0, 60, 50, 80}, page);
    disabled->SetEnabled(false);
    TQV7SkinSimpleTabControl::FocusFirstChild(page);
    EXPECT_TRUE(first->Focused());
    first->SetTabOrder(2);
    TQV7SkinSimpleTabControl::FocusFirstChild(page);
    EXPECT_FALSE(first->Focused()) << "tab order, not order of making";
}

}  // namespace
}  // namespace qv7skin
