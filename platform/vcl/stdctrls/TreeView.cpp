#include "platform/vcl/stdctrls/TreeView.h"

#include <commctrl.h>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Font.h"

namespace vcl {
namespace {

TTreeNode* NodeOf(LPARAM data) {
    return reinterpret_cast<TTreeNode*>(data);
}

}  // namespace

const TMetaClass& TCustomTreeView::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomTreeView>(L"TCustomTreeView", TWinControl::StaticClass());
    return meta;
}

TCustomTreeView::TCustomTreeView(TComponent* AOwner) : TWinControl(AOwner), FItems(new TTreeNodes(*this)) {
    ControlStyle = {csDoubleClicks, csReflector};
    SetBounds(0, 0, 121, 97);
    SetColor(clWindow);
    SetTabStop(true);
}

TCustomTreeView::~TCustomTreeView() = default;

void TCustomTreeView::SetBorderStyle(TBorderStyle value) {
    if (value == FBorderStyle) return;
    FBorderStyle = value;
    RecreateWnd();
}

// --- the window

LRESULT TCustomTreeView::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageW(WindowHandle(), message, wParam, lParam);
}

void TCustomTreeView::CreateParams(TCreateParams& params) {
    const INITCOMMONCONTROLSEX classes{sizeof(INITCOMMONCONTROLSEX), ICC_TREEVIEW_CLASSES};
    ::InitCommonControlsEx(&classes);
    TWinControl::CreateParams(params);
    CreateSubClass(params, WC_TREEVIEWW);
    params.WindowClass.style |= CS_DBLCLKS;
    params.Style |= TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP;
    if (FBorderStyle == bsSingle) params.ExStyle |= WS_EX_CLIENTEDGE;
}

void TCustomTreeView::CreateWnd() {
    TWinControl::CreateWnd();
    ApplyColors();
    Send(WM_SETREDRAW, FALSE);
    ++FMirroring;
    for (TTreeNode* node = FItems->GetFirstNode(); node; node = node->GetNextSibling())
        ShowSubtree(*node);
    ShowSelection();
    --FMirroring;
    Send(WM_SETREDRAW, TRUE);
}

void TCustomTreeView::DestroyWnd() {
    ++FMirroring;
    TWinControl::DestroyWnd();
    --FMirroring;
    for (TTreeNode* node = FItems->GetFirstNode(); node; node = node->GetNext())
        node->ItemId = nullptr;
}

void TCustomTreeView::ApplyColors() {
    if (!HandleAllocated()) return;
    Send(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(ColorToRGB(GetColor())));
    Send(TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(ColorToRGB(GetFont().GetColor())));
}

TTreeNode* TCustomTreeView::GetNodeAt(int x, int y) const {
    if (!HandleAllocated()) return nullptr;
    TVHITTESTINFO hit{};
    hit.pt = {x, y};
    Send(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (!hit.hItem || (hit.flags & TVHT_ONITEM) == 0) return nullptr;
    TVITEMW item{};
    item.mask = TVIF_PARAM;
    item.hItem = hit.hItem;
    Send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return NodeOf(item.lParam);
}

TRect TCustomTreeView::GetTextRect(const TTreeNode& node) const {
    RECT rect{};
    if (!node.ItemId) return {};
    std::memcpy(&rect, &node.ItemId, sizeof node.ItemId);
    if (!Send(TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&rect))) return {};
    return rect;
}

int TCustomTreeView::GetItemHeight() const {
    return static_cast<int>(
        ::SendMessageW(const_cast<TCustomTreeView*>(this)->GetHandle(), TVM_GETITEMHEIGHT, 0, 0));
}

// --- what the nodes tell

/// Puts the node and all below it into the window.
void TCustomTreeView::ShowSubtree(TTreeNode& node) {
    TVINSERTSTRUCTW insert{};
    insert.hParent = node.GetParent() ? node.GetParent()->ItemId : TVI_ROOT;
    insert.hInsertAfter = TVI_LAST;
    if (node.GetNextSibling() && node.GetNextSibling()->ItemId)
        insert.hInsertAfter = node.GetPrevSibling() ? node.GetPrevSibling()->ItemId : TVI_FIRST;
    String text = node.GetText();
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_CHILDREN;
    insert.item.pszText = text.data();
    insert.item.lParam = reinterpret_cast<LPARAM>(&node);
    insert.item.cChildren = node.GetHasChildren();
    node.ItemId = reinterpret_cast<HTREEITEM>(Send(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    for (TTreeNode* child = node.GetFirstChild(); child; child = child->GetNextSibling())
        ShowSubtree(*child);
    if (node.GetExpanded()) ShowExpanded(node);
}

void TCustomTreeView::NodeInserted(TTreeNode& node) {
    if (!HandleAllocated()) return;
    ++FMirroring;
    ShowSubtree(node);
    if (TTreeNode* parent = node.GetParent(); parent && parent->GetCount() == 1) NodeChanged(*parent);
    --FMirroring;
}

void TCustomTreeView::ForgetItems(TTreeNode& node) {
    node.ItemId = nullptr;
    for (TTreeNode* child = node.GetFirstChild(); child; child = child->GetNextSibling())
        ForgetItems(*child);
}

void TCustomTreeView::NodeRemoving(TTreeNode& node) {
    if (!HandleAllocated() || !node.ItemId) return;
    ++FMirroring;
    Send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(node.ItemId));
    --FMirroring;
    ForgetItems(node);
}

void TCustomTreeView::NodeChanged(TTreeNode& node) {
    if (HandleAllocated() && node.ItemId) {
        String text = node.GetText();
        TVITEMW item{};
        item.mask = TVIF_TEXT | TVIF_CHILDREN;
        item.hItem = node.ItemId;
        item.pszText = text.data();
        item.cChildren = node.GetHasChildren();
        Send(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    OnNodeChanged(this, &node);
}

bool TCustomTreeView::NodeExpanding(TTreeNode& node, bool expand) {
    bool allowed = true;
    (expand ? OnExpanding : OnCollapsing)(this, &node, allowed);
    return allowed;
}

void TCustomTreeView::ShowExpanded(const TTreeNode& node) {
    Send(TVM_EXPAND, node.GetExpanded() ? TVE_EXPAND : TVE_COLLAPSE, reinterpret_cast<LPARAM>(node.ItemId));
}

void TCustomTreeView::NodeExpanded(TTreeNode& node) {
    const TLifeGuard guard(*this);
    if (HandleAllocated()) {
        ++FMirroring;
        ShowExpanded(node);
        --FMirroring;
        // A node that is collapsed takes over the selection of those below it.
        TakeSelectionOfWindow();
    }
    if (guard.IsAlive()) (node.GetExpanded() ? OnExpanded : OnCollapsed)(this, &node);
}

void TCustomTreeView::ShowSelection() {
    if (!HandleAllocated()) return;
    const TTreeNode* node = FItems->GetSelected();
    ++FMirroring;
    Send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node ? node->ItemId : nullptr));
    --FMirroring;
}

void TCustomTreeView::SelectionChanged() {
    ShowSelection();
    OnChange(this, FItems->GetSelected());
}

void TCustomTreeView::TakeSelectionOfWindow() {
    TVITEMW item{};
    item.mask = TVIF_PARAM;
    item.hItem = reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, TVGN_CARET));
    if (item.hItem) Send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    FItems->SetSelected(NodeOf(item.lParam));
}

void TCustomTreeView::NodeShown(TTreeNode& node) {
    if (HandleAllocated()) Send(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(node.ItemId));
}

void TCustomTreeView::UpdateStateChanged(bool updating) {
    if (!HandleAllocated()) return;
    Send(WM_SETREDRAW, !updating);
    if (!updating) Invalidate();
}

// --- messages

void TCustomTreeView::WndProc(TMessage& message) {
    struct TCounted {
        explicit TCounted(TCustomTreeView& tree) : Tree(tree), Guard(tree) { ++Tree.FMessages; }
        ~TCounted() {
            if (Guard.IsAlive()) --Tree.FMessages;
        }
        TCounted(const TCounted&) = delete;
        TCounted& operator=(const TCounted&) = delete;
        TCustomTreeView& Tree;
        TLifeGuard Guard;
    };
    const TCounted counted(*this);
    TWinControl::WndProc(message);
}

void TCustomTreeView::Dispatch(TMessage& message) {
    if (message.Msg == CN_NOTIFY) return CnNotify(message);
    const TLifeGuard guard(*this);
    TWinControl::Dispatch(message);
    if ((message.Msg == CM_COLORCHANGED || message.Msg == CM_FONTCHANGED) && guard.IsAlive()) ApplyColors();
}

/// The user expanded or collapsed the node. A collapsed one takes over the selection of those below it, of
/// which not every system tells.
void TCustomTreeView::NodeTurned(TTreeNode& node) {
    const TLifeGuard guard(*this);
    const TLifeGuard nodeGuard(node);
    const TTreeNode* selected = GetSelected();
    if (!node.GetExpanded() && selected && selected->HasAsParent(&node)) SetSelected(&node);
    if (guard.IsAlive() && nodeGuard.IsAlive()) (node.GetExpanded() ? OnExpanded : OnCollapsed)(this, &node);
}

void TCustomTreeView::CnNotify(TMessage& message) {
    const auto* change = message.As<NMTREEVIEWW>();
    switch (change->hdr.code) {
        case static_cast<UINT>(TVN_ITEMEXPANDINGW):
            if (FMirroring == 0)
                message.Result =
                    !NodeExpanding(*NodeOf(change->itemNew.lParam), change->action == TVE_EXPAND);
            return;
        case static_cast<UINT>(TVN_ITEMEXPANDEDW): {
            if (FMirroring > 0) return;
            TTreeNode* node = NodeOf(change->itemNew.lParam);
            node->TakeExpanded(change->action == TVE_EXPAND);
            return NodeTurned(*node);
        }
        case static_cast<UINT>(TVN_SELCHANGEDW):
            if (FMirroring == 0) FItems->SetSelected(NodeOf(change->itemNew.lParam));
            return;
        default:
            return TWinControl::Dispatch(message);
    }
}

}  // namespace vcl
