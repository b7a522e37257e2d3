#include "platform/vcl/stdctrls/Edit.h"
#include "platform/velmora/OwnAdvTreeComboBoxEx.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace {

using namespace velmora;

class TreeComboBox : public test::FormTest {
protected:
    /// Obst (Apfel, Birne), Gemuese (Kohl (Rotkohl)), Brot; at (10, 10).
    TOwnAdvTreeComboBoxEx& Box() {
        if (FBox) return *FBox;
        FBox = Make<TOwnAdvTreeComboBoxEx>(TRect::OfSize(10, 10, 150, 21));
        TTreeNodes& nodes = FBox->GetTreeItems();
        Fruit = nodes.Add(nullptr, L"Obst");
        Apple = nodes.AddChild(Fruit, L"Apfel");
        Pear = nodes.AddChild(Fruit, L"Birne");
        Vegetables = nodes.Add(nullptr, L"Gemuese");
        RedCabbage = nodes.AddChild(nodes.AddChild(Vegetables, L"Kohl"), L"Rotkohl");
        nodes.Add(nullptr, L"Brot");
        FBox->OnClick = [this](TObject*) { Told += L"click "; };
        FBox->OnChange = [this](TObject*) { Told += L"change "; };
        FBox->OnDropDown = [this](TObject*) { Told += L"open "; };
        FBox->OnDropUp = [this](TObject* sender, bool cancelled) {
            EXPECT_EQ(sender, FBox);
            Told += cancelled ? L"cancel " : L"close ";
        };
        return *FBox;
    }
    void PressButton() { Input.ClickAt(Box().GetHandle(), 150 - 8, 10); }
    [[nodiscard]] HWND TreeWindow() { return Box().GetTree().GetHandle(); }
    void ClickNode(const TTreeNode& node) {
        const TRect text = Box().GetTree().GetTextRect(node);
        ASSERT_FALSE(text.IsEmpty());
        Input.ClickAt(TreeWindow(), text.Left + 3, (text.Top + text.Bottom) / 2);
    }
    [[nodiscard]] bool TreeShows() { return ::IsWindowVisible(TreeWindow()) != FALSE; }

    String Told;
    TTreeNode* Fruit = nullptr;
    TTreeNode* Apple = nullptr;
    TTreeNode* Pear = nullptr;
    TTreeNode* Vegetables = nullptr;
    TTreeNode* RedCabbage = nullptr;

private:
    TOwnAdvTreeComboBoxEx* FBox = nullptr;
};

TEST_F(TreeComboBox, ThePressOnTheButtonShowsTheTreeBelow) {
    PressButton();
    EXPECT_TRUE(Box().GetDroppedDown());
    ASSERT_TRUE(TreeShows());
    RECT window{};
    ::GetWindowRect(::GetAncestor(TreeWindow(), GA_ROOT), &window);
    const TPoint below = Box().ClientToScreen({0, 21});
    EXPECT_EQ(window.left, below.X);
    EXPECT_EQ(window.top, below.Y);
    EXPECT_EQ(window.right - window.left, 150);
    EXPECT_EQ(window.bottom - window.top, 8 * Box().GetTree().GetItemHeight() + 2);
    EXPECT_EQ(::GetFocus(), TreeWindow());
    EXPECT_EQ(Told, L"open ");
}

TEST_F(TreeComboBox, GoesUpWhereThereIsNoRoomBelow) {
    Box();
    Form().SetBounds(100, 680, 300, 80);
    PressButton();
    ASSERT_TRUE(TreeShows());
    RECT window{};
    ::GetWindowRect(::GetAncestor(TreeWindow(), GA_ROOT), &window);
    EXPECT_EQ(window.bottom, Box().ClientToScreen({0, 0}).Y);
}

TEST_F(TreeComboBox, AClickOnANodeChoosesIt) {
    PressButton();
    ClickNode(*Vegetables);
    EXPECT_FALSE(TreeShows());
    EXPECT_FALSE(Box().GetDroppedDown());
    EXPECT_EQ(Box().GetText(), L"Gemuese");
    EXPECT_EQ(Box().GetSelected(), Vegetables);
    EXPECT_EQ(Told, L"open click change close ");
    EXPECT_TRUE(Box().Focused());
}

TEST_F(TreeComboBox, TheSameNodeOnceMoreTellsNoChange) {
    Box().SetSelected(Vegetables);
    EXPECT_EQ(Box().GetText(), L"Gemuese");
    PressButton();
    ClickNode(*Vegetables);
    EXPECT_EQ(Told, L"open close ");
}

TEST_F(TreeComboBox, EscapeLeavesChoiceAndText) {
    Box().SetSelected(Vegetables);
    PressButton();
    Input.KeyPress(VK_DOWN);
    EXPECT_NE(Box().GetTree().GetSelected(), Vegetables);
    EXPECT_EQ(Box().GetText(), L"Gemuese");
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(TreeShows());
    EXPECT_EQ(Box().GetSelected(), Vegetables);
    EXPECT_EQ(Box().GetText(), L"Gemuese");
    EXPECT_EQ(Told, L"open cancel ");
}

TEST_F(TreeComboBox, AnotherWindowBecomingActiveCancels) {
    PressButton();
    TForm other(nullptr);
    other.SetBounds(600, 100, 100, 100);
    other.Show();
    test::PumpAll();
    EXPECT_FALSE(TreeShows());
    EXPECT_EQ(Told, L"open cancel ");
}

TEST_F(TreeComboBox, APressOnTheOpenBoxClosesItOnce) {
    PressButton();
    PressButton();
    EXPECT_FALSE(TreeShows());
    EXPECT_EQ(Told, L"open cancel ");
    PressButton();
    EXPECT_TRUE(TreeShows());
}

TEST_F(TreeComboBox, KeysOpenChooseAndClose) {
    Box().SetFocus();
    for (const WORD key : {WORD{VK_F4}, WORD{VK_RETURN}}) {
        Told.clear();
        Input.Chord({VK_MENU}, VK_DOWN);
        ASSERT_TRUE(TreeShows());
        Input.KeyPress(VK_DOWN);
        Input.KeyPress(key);
        EXPECT_FALSE(TreeShows());
        EXPECT_EQ(Told, L"open click change close ");
    }
    Input.KeyPress(VK_F4);
    ASSERT_TRUE(TreeShows());
    Input.Chord({VK_MENU}, VK_UP);
    EXPECT_FALSE(TreeShows());
    EXPECT_TRUE(Box().Focused());
}

TEST_F(TreeComboBox, TabTakesTheNodeAndGoesOn) {
    auto* before = Make<TEdit>(TRect::OfSize(10, 60, 50, 21));
    Box();
    auto* after = Make<TEdit>(TRect::OfSize(10, 90, 50, 21));
    Box().SetSelected(Fruit);
    PressButton();
    Input.KeyPress(VK_DOWN);
    Input.KeyPress(VK_TAB);
    EXPECT_FALSE(TreeShows());
    EXPECT_EQ(Box().GetText(), L"Gemuese");
    EXPECT_TRUE(after->Focused());
    Box().SetFocus();
    Input.KeyPress(VK_F4);
    Input.Chord({VK_SHIFT}, VK_TAB);
    EXPECT_TRUE(before->Focused());
    EXPECT_EQ(Told, L"open click change close open close ");
}

TEST_F(TreeComboBox, ClosingItsWindowCancels) {
    PressButton();
    Input.Chord({VK_MENU}, VK_F4);
    EXPECT_FALSE(TreeShows());
    EXPECT_FALSE(Box().GetDroppedDown());
    EXPECT_EQ(Told, L"open cancel ");
    EXPECT_TRUE(Form().GetVisible());
    PressButton();
    EXPECT_TRUE(TreeShows());
    ::PostMessageW(::GetAncestor(TreeWindow(), GA_ROOT), WM_CLOSE, 0, 0);
    test::PumpAll();
    EXPECT_FALSE(TreeShows());
    EXPECT_FALSE(Box().GetDroppedDown());
    EXPECT_EQ(Told, L"open cancel open cancel ");
}

TEST_F(TreeComboBox, TheTreesOwnKeysWorkInTheOpenTree) {
    Box().SetSelected(Fruit);
    PressButton();
    Input.KeyPress(VK_RIGHT);
    EXPECT_TRUE(Fruit->GetExpanded());
    Input.KeyPress(VK_RIGHT);
    EXPECT_EQ(Box().GetTree().GetSelected(), Apple);
    Input.KeyPress(VK_END);
    EXPECT_EQ(Box().GetTree().GetSelected()->GetText(), L"Brot");
    Input.Type(L"b");
    EXPECT_EQ(Box().GetTree().GetSelected(), Pear);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Box().GetText(), L"Birne");
}

TEST_F(TreeComboBox, ArrowsChooseAmongTheNodesThatShow) {
    Box().SetFocus();
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(Box().GetText(), L"Obst");
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(Box().GetText(), L"Gemuese");
    EXPECT_EQ(Told, L"click change click change ");
    Fruit->Expand(false);
    Input.KeyPress(VK_UP);
    EXPECT_EQ(Box().GetText(), L"Birne");
}

TEST_F(TreeComboBox, TheFirstAndTheLastNodeAreTheEnds) {
    Box().SetFocus();
    Box().SetSelected(Fruit);
    Input.KeyPress(VK_UP);
    EXPECT_EQ(Box().GetSelected(), Fruit);
    EXPECT_EQ(Told, L"");
}

TEST_F(TreeComboBox, TypingTellsAndFindsTheNode) {
    Box().SetFocus();
    Input.Type(L"Rotkohl");
    EXPECT_EQ(Box().GetText(), L"Rotkohl");
    EXPECT_EQ(Box().GetSelected(), RedCabbage);
    EXPECT_EQ(Box().GetItemIndex(), 5);
    Input.Type(L"!");
    EXPECT_EQ(Box().GetSelected(), nullptr);
    EXPECT_EQ(Box().GetText(), L"Rotkohl!");
    EXPECT_EQ(Told.substr(0, 14), L"change change ");
}

TEST_F(TreeComboBox, WithoutAnEditorLettersAndEndsChoose) {
    Box().SetStyle(csDropDownList);
    Box().SetFocus();
    Input.Type(L"g");
    EXPECT_EQ(Box().GetText(), L"Gemuese");
    Input.Type(L"x");
    EXPECT_EQ(Box().GetText(), L"Gemuese");
    Input.KeyPress(VK_END);
    EXPECT_EQ(Box().GetText(), L"Brot");
    Input.KeyPress(VK_HOME);
    EXPECT_EQ(Box().GetText(), L"Obst");
    Input.KeyPress(VK_NEXT);
    EXPECT_EQ(Box().GetText(), L"Brot");
    Input.KeyPress(VK_PRIOR);
    EXPECT_EQ(Box().GetText(), L"Obst");
    Input.ClickAt(Box().GetHandle(), 20, 10);
    EXPECT_TRUE(TreeShows());
    Input.ClickAt(Box().GetHandle(), 20, 10);
    EXPECT_FALSE(TreeShows());
}

TEST_F(TreeComboBox, WithoutAnEditorTheTextIsThatOfANode) {
    Box().SetStyle(csDropDownList);
    Box().SetText(L"kein Knoten");
    EXPECT_EQ(Box().GetText(), L"");
    Box().SetText(L"birne");
    EXPECT_EQ(Box().GetText(), L"Birne");
    EXPECT_EQ(Box().GetSelected(), Pear);
    Pear->SetText(L"Quitte");
    EXPECT_EQ(Box().GetText(), L"Quitte");
    Pear->Delete();
    EXPECT_EQ(Box().GetText(), L"");
    EXPECT_EQ(Told, L"");
}

TEST_F(TreeComboBox, TheWheelStepsWhileItHasTheFocus) {
    Box();
    Input.MoveTo(Box().GetHandle(), 20, 10);
    Input.Wheel(-1);
    EXPECT_EQ(Box().GetText(), L"");
    Box().SetFocus();
    Input.Wheel(-1);
    Input.Wheel(-1);
    EXPECT_EQ(Box().GetText(), L"Gemuese");
    Input.Wheel(1);
    EXPECT_EQ(Box().GetText(), L"Obst");
}

TEST_F(TreeComboBox, ANewTextChoosesItsNodeWithoutEvents) {
    Box().SetNewText(L"rotkohl");
    EXPECT_EQ(Box().GetText(), L"rotkohl");
    EXPECT_EQ(Box().GetSelected(), RedCabbage);
    Box().SetNewText(L"anderes");
    EXPECT_EQ(Box().GetText(), L"anderes");
    EXPECT_EQ(Box().GetSelected(), nullptr);
    EXPECT_EQ(Told, L"");
}

TEST_F(TreeComboBox, AHandlerForbidsExpanding) {
    const TTreeNode* asked = nullptr;
    Box().OnTreeExpanding = [&](TObject* sender, TTreeNode* node, bool& allowed) {
        EXPECT_EQ(sender, &Box());
        asked = node;
        allowed = node != Fruit;
    };
    PressButton();
    const TRect text = Box().GetTree().GetTextRect(*Fruit);
    Input.ClickAt(TreeWindow(), text.Left - 8, (text.Top + text.Bottom) / 2);
    EXPECT_EQ(asked, Fruit);
    EXPECT_FALSE(Fruit->GetExpanded());
    EXPECT_TRUE(Box().GetTree().GetTextRect(*Apple).IsEmpty());
    Input.ClickAt(TreeWindow(), text.Left - 8, text.Bottom + 4);
    EXPECT_EQ(asked, Vegetables);
    EXPECT_TRUE(Vegetables->GetExpanded());
    EXPECT_TRUE(TreeShows());
    Fruit->Expand(false);
    EXPECT_FALSE(Fruit->GetExpanded());
}

TEST_F(TreeComboBox, AHandlerMakesThePromisedNodes) {
    TTreeNode* late = Box().GetTreeItems().Add(nullptr, L"Getraenke");
    late->SetHasChildren(true);
    Box().OnTreeExpanding = [&](TObject*, TTreeNode* node, bool&) {
        if (node == late && node->GetCount() == 0) Box().GetTreeItems().AddChild(node, L"Wein");
    };
    PressButton();
    const TRect text = Box().GetTree().GetTextRect(*late);
    Input.ClickAt(TreeWindow(), text.Left - 8, (text.Top + text.Bottom) / 2);
    ASSERT_EQ(late->GetCount(), 1);
    ClickNode(*late->GetFirstChild());
    EXPECT_EQ(Box().GetText(), L"Wein");
}

TEST_F(TreeComboBox, ANodeMayGoWhileTheTreeIsOpen) {
    Box().SetSelected(Pear);
    PressButton();
    Fruit->Delete();
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Box().GetSelected(), nullptr);
    EXPECT_EQ(Box().GetText(), L"Birne");
}

TEST_F(TreeComboBox, MayGoWhileTheTreeIsOpen) {
    PressButton();
    EXPECT_TRUE(TreeShows());
    Box().Free();
    test::PumpAll();
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(TreeComboBox, MayBeFreedByEachOfItsEvents) {
    for (const int which : {0, 1, 2, 3}) {
        auto* box = Make<TOwnAdvTreeComboBoxEx>(TRect::OfSize(10, 60, 150, 21));
        TTreeNode* node = box->GetTreeItems().Add(nullptr, L"eins");
        box->GetTreeItems().AddChild(node, L"zwei");
        const auto free = [box](TObject*) { box->Free(); };
        if (which == 0) box->OnClick = free;
        if (which == 1) box->OnChange = free;
        if (which == 2) box->OnDropUp = [box](TObject*, bool) { box->Free(); };
        if (which == 3) box->OnTreeExpanding = [box](TObject*, TTreeNode*, bool&) { box->Free(); };
        box->SetFocus();
        Input.KeyPress(VK_F4);
        const HWND tree = box->GetTree().GetHandle();
        const TRect text = box->GetTree().GetTextRect(*node);
        Input.ClickAt(tree, which == 3 ? text.Left - 8 : text.Left + 3, (text.Top + text.Bottom) / 2);
        EXPECT_EQ(Form().GetControlCount(), 0) << which;
        EXPECT_FALSE(::IsWindow(tree)) << which;
    }
}

TEST_F(TreeComboBox, ItemsAreTheNodesFromTopToBottom) {
    TStrings& items = Box().GetItems();
    ASSERT_EQ(items.GetCount(), 7);
    EXPECT_EQ(items.Get(2), L"Birne");
    EXPECT_EQ(items.IndexOf(L"ROTKOHL"), 5);
    Box().SetItemIndex(2);
    EXPECT_EQ(Box().GetSelected(), Pear);
    EXPECT_EQ(Box().GetText(), L"Birne");
    Box().SetItemIndex(99);
    EXPECT_EQ(Box().GetItemIndex(), -1);
    items.Insert(1, L"Ananas");
    EXPECT_EQ(Fruit->GetFirstChild()->GetText(), L"Ananas");
    items.Delete(0);
    EXPECT_EQ(items.GetCount(), 4);
    TStringList texts;
    for (const wchar_t* text : {L"a", L"\tb", L"\t\tc", L"\td", L"e"})
        texts.Add(text);
    Box().SetItems(texts);
    TTreeNodes& nodes = Box().GetTreeItems();
    ASSERT_EQ(nodes.GetCount(), 5);
    EXPECT_EQ(nodes[2]->GetLevel(), 2);
    EXPECT_EQ(nodes[3]->GetParent(), nodes[0]);
    EXPECT_EQ(nodes[4]->GetLevel(), 0);
}

TEST_F(TreeComboBox, SortingKeepsEachLevelInOrder) {
    Box().SetSorted(true);
    String order;
    for (const TTreeNode* node = Box().GetTreeItems().GetFirstNode(); node; node = node->GetNext())
        order += node->GetText() + L" ";
    EXPECT_EQ(order, L"Brot Gemuese Kohl Rotkohl Obst Apfel Birne ");
    PressButton();
    Box().GetTreeItems().Add(nullptr, L"Fisch");
    const int fish = Box().GetTree().GetTextRect(*Box().GetTreeItems()[1]).Top;
    EXPECT_EQ(Box().GetTreeItems()[1]->GetText(), L"Fisch");
    EXPECT_EQ(fish, Box().GetTree().GetItemHeight());
}

TEST_F(TreeComboBox, TabGoesRoundItAsOneStop) {
    auto* before = Make<TEdit>(TRect::OfSize(10, 60, 50, 21));
    Box();
    auto* after = Make<TEdit>(TRect::OfSize(10, 90, 50, 21));
    before->SetFocus();
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(Box().Focused());
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(after->Focused());
    Input.Chord({VK_SHIFT}, VK_TAB);
    EXPECT_TRUE(Box().Focused());
    Input.Chord({VK_SHIFT}, VK_TAB);
    EXPECT_TRUE(before->Focused());
}

TEST_F(TreeComboBox, ADisabledOneDoesNotOpen) {
    Box().SetEnabled(false);
    PressButton();
    Box().SetDroppedDown(true);
    EXPECT_FALSE(TreeShows());
    EXPECT_EQ(Told, L"");
    EXPECT_FALSE(Box().GetEdit().GetEnabled());
}

TEST_F(TreeComboBox, ColoursByIndex) {
    EXPECT_EQ(Box().GetColors(0), TColor{clBlack});
    EXPECT_EQ(Box().GetColors(1), TColor{0x00C5D6D9});
    EXPECT_EQ(Box().GetColors(2), TColor{0x008396A0});
    EXPECT_EQ(Box().GetColors(3), TColor{0x008396A0});
    EXPECT_THROW(Box().SetColors(4, 0), EListError);
    EXPECT_THROW((void)Box().GetColors(-1), EListError);
    Box().SetColors(0, 0x00010203);
    Box().SetColors(1, 0x00040506);
    Box().SetColors(3, 0x00070809);
    test::PumpAll();
    const test::Pixels shown = test::ReadClient(Box().GetHandle());
    EXPECT_EQ(shown.At(0, 0), 0x00070809u);
    EXPECT_EQ(shown.At(150 - 3, 3), 0x00040506u);
    EXPECT_GT(shown.Count(0x00010203), 3);
    Box().SetColors(2, 0x000A0B0C);
    PressButton();
    test::PumpAll();
    const HWND window = ::GetAncestor(TreeWindow(), GA_ROOT);
    EXPECT_EQ(test::ReadClient(window).At(0, 0), 0x000A0B0Cu);
}

TEST_F(TreeComboBox, TwoHundredRoundsLeaveNothingBehind) {
    Box().SetFocus();
    Box().SetDroppedDown(true);
    Box().SetDroppedDown(false);
    const int controls = Form().GetControlCount();
    for (int round = 0; round < 200; ++round) {
        Box().SetDroppedDown(true);
        Box().SetDroppedDown(false);
    }
    EXPECT_EQ(Form().GetControlCount(), controls);
    EXPECT_FALSE(TreeShows());
}

}  // namespace
