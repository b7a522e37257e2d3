#include "platform/vcl/stdctrls/TreeView.h"

#include <commctrl.h>

#include "platform/vcl/core/Exceptions.h"
#include "tests/support/FormTest.h"

namespace {

using namespace vcl;

class TreeView : public test::FormTest {
protected:
    /// a (b (c), d), e
    TCustomTreeView& Tree() {
        if (FTree) return *FTree;
        FTree = Make<TCustomTreeView>(TRect::OfSize(10, 10, 200, 200));
        TTreeNodes& nodes = FTree->GetItems();
        A = nodes.Add(nullptr, L"a");
        B = nodes.AddChild(A, L"b");
        C = nodes.AddChild(B, L"c");
        D = nodes.AddChild(A, L"d");
        E = nodes.Add(nullptr, L"e");
        return *FTree;
    }
    /// The texts from the top to the bottom as the window has them.
    String InWindow(HTREEITEM item = nullptr) {
        const HWND window = Tree().GetHandle();
        String texts;
        item = item ? TreeView_GetChild(window, item) : TreeView_GetRoot(window);
        for (; item; item = TreeView_GetNextSibling(window, item)) {
            wchar_t text[32] = {};
            TVITEMW request{};
            request.mask = TVIF_TEXT;
            request.hItem = item;
            request.pszText = text;
            request.cchTextMax = 32;
            ::SendMessageW(window, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&request));
            texts += text;
            if (const String below = InWindow(item); !below.empty()) texts += L"(" + below + L")";
        }
        return texts;
    }
    void ClickSign(const TTreeNode& node) {
        const TRect text = Tree().GetTextRect(node);
        Input.ClickAt(Tree().GetHandle(), text.Left - 8, (text.Top + text.Bottom) / 2);
    }

    TTreeNode* A = nullptr;
    TTreeNode* B = nullptr;
    TTreeNode* C = nullptr;
    TTreeNode* D = nullptr;
    TTreeNode* E = nullptr;

private:
    TCustomTreeView* FTree = nullptr;
};

TEST_F(TreeView, NodesAreThereWithoutAWindow) {
    TCustomTreeView tree(nullptr);
    TTreeNodes& nodes = tree.GetItems();
    TTreeNode* a = nodes.Add(nullptr, L"a");
    TTreeNode* c = nodes.AddChild(nodes.AddChild(a, L"b"), L"c");
    TTreeNode* e = nodes.Add(a, L"e");
    EXPECT_FALSE(tree.HandleAllocated());
    ASSERT_EQ(nodes.GetCount(), 4);
    EXPECT_EQ(nodes[2], c);
    EXPECT_EQ(nodes[0], a);
    EXPECT_EQ(nodes[3], e);
    EXPECT_THROW((void)nodes[4], EListError);
    EXPECT_THROW((void)a->GetItem(1), EListError);
    EXPECT_EQ(c->GetLevel(), 2);
    EXPECT_EQ(c->GetAbsoluteIndex(), 2);
    EXPECT_TRUE(c->HasAsParent(a));
    EXPECT_FALSE(c->IsShown());
    c->MakeVisible();
    EXPECT_TRUE(c->IsShown());
    EXPECT_TRUE(a->GetExpanded());
    EXPECT_EQ(e->GetPrev(), c);
    EXPECT_EQ(a->GetNext()->GetNext(), c);
}

TEST_F(TreeView, TheWindowShowsWhatTheNodesAre) {
    Tree();
    EXPECT_EQ(InWindow(), L"a(b(c)d)e");
    Tree().GetItems().Insert(E, L"x");
    Tree().GetItems().AddChildFirst(A, L"y");
    EXPECT_EQ(InWindow(), L"a(yb(c)d)xe");
    B->Delete();
    E->SetText(L"z");
    EXPECT_EQ(InWindow(), L"a(yd)xz");
    Tree().RecreateWnd();
    EXPECT_EQ(InWindow(), L"a(yd)xz");
    Tree().GetItems().SetSorted(true);
    Tree().GetItems().Add(nullptr, L"m");
    EXPECT_EQ(InWindow(), L"a(dy)mxz");
    Tree().GetItems().Clear();
    EXPECT_EQ(InWindow(), L"");
}

TEST_F(TreeView, ExpansionAndSelectionOutliveTheWindow) {
    Tree().HandleNeeded();
    A->Expand(false);
    D->SetSelected(true);
    Tree().RecreateWnd();
    EXPECT_TRUE(A->GetExpanded());
    EXPECT_FALSE(Tree().GetTextRect(*D).IsEmpty());
    EXPECT_EQ(TreeView_GetSelection(Tree().GetHandle()), D->ItemId);
}

TEST_F(TreeView, TheUserExpandsUnlessItIsForbidden) {
    bool allows = false;
    String told;
    Tree().OnExpanding = [&](TObject*, TTreeNode*, bool& allowed) { allowed = allows; };
    Tree().OnExpanded = [&](TObject*, TTreeNode* node) { told += L"+" + node->GetText(); };
    Tree().OnCollapsed = [&](TObject*, TTreeNode* node) { told += L"-" + node->GetText(); };
    ClickSign(*A);
    EXPECT_FALSE(A->GetExpanded());
    allows = true;
    ClickSign(*A);
    EXPECT_TRUE(A->GetExpanded());
    ClickSign(*A);
    EXPECT_FALSE(A->GetExpanded());
    A->Expand(true);
    EXPECT_TRUE(B->GetExpanded());
    A->Collapse(true);
    EXPECT_FALSE(B->GetExpanded());
    EXPECT_EQ(told, L"+a-a+a+b-a-b");
}

TEST_F(TreeView, CollapsingTakesTheSelectionOver) {
    Tree().HandleNeeded();
    A->Expand(false);
    D->SetSelected(true);
    ClickSign(*A);
    EXPECT_EQ(Tree().GetSelected(), A);
    A->Expand(false);
    B->SetSelected(true);
    A->Collapse(false);
    EXPECT_EQ(Tree().GetSelected(), A);
}

TEST_F(TreeView, TellsOfEachSelection) {
    String told;
    Tree().OnChange = [&](TObject*, TTreeNode* node) { told += node ? node->GetText() : L"-"; };
    const TRect text = Tree().GetTextRect(*E);
    Input.ClickAt(Tree().GetHandle(), text.Left + 2, text.Top + 3);
    EXPECT_EQ(Tree().GetSelected(), E);
    Input.KeyPress(VK_UP);
    A->Delete();
    EXPECT_EQ(Tree().GetSelected(), nullptr);
    EXPECT_EQ(told, L"ea-");
}

TEST_F(TreeView, AHandlerMayDeleteTheNodeThatExpands) {
    Tree().OnExpanding = [&](TObject*, TTreeNode* node, bool&) { node->Delete(); };
    Tree().HandleNeeded();
    A->Expand(true);
    EXPECT_EQ(Tree().GetItems().GetCount(), 1);
    EXPECT_EQ(InWindow(), L"e");
}

TEST_F(TreeView, TakesOverTheNodesOfAnother) {
    TCustomTreeView other(nullptr);
    other.SetItems(Tree().GetItems());
    ASSERT_EQ(other.GetItems().GetCount(), 5);
    EXPECT_EQ(other.GetItems()[2]->GetText(), L"c");
    EXPECT_EQ(other.GetItems()[2]->GetLevel(), 2);
}

}  // namespace
