#include "designer/surface/DesignSurface.h"

#include "designer/model/Arranging.h"
#include "designer/model/Placing.h"
#include "designer/model/Walking.h"
#include "designer/surface/Handles.h"
#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"

namespace designer {
namespace {

/// Pixels between the form and the edges of the surface.
constexpr int Margin = 16;

/// True for the parts of a control that a designer shows as one.
bool IsPartOf(const TControl& control, const TComponent& root) {
    return control.GetOwner() != &root;
}

}  // namespace

TDesignSurface::TDesignSurface(TComponent* AOwner, TDesignDocument& document)
    : TCustomControl(AOwner),
      FDocument(document),
      FHandles(GetQV7SkinColorLinkText(), GetQV7SkinColorCaption()),
      FMarks(GetQV7SkinColorLinkVisited(), GetQV7SkinColorCaption()),
      FBand(GetQV7SkinColorLinkText(), GetQV7SkinColorLinkText()),
      FPicture(GetQV7SkinColorLinkText()) {
    // A drag holds the mouse itself; the end of a press must not take it away before the drop.
    ControlStyle = ControlStyle + TControlStyle{csOpaque} - TControlStyle{csCaptureMouse};
    SetColor(GetQV7SkinColorBackground());
    SetTabStop(true);
    FDocument.OnRebuilt = {this, &TDesignSurface::AdoptRoot};
}

TDesignSurface::~TDesignSurface() {
    FDocument.OnRebuilt.Clear();
    FIcons.Clear();
    Root().SetDesignHook(nullptr);
    Root().SetParentWindow(nullptr);
}

void TDesignSurface::CreateWnd() {
    TCustomControl::CreateWnd();
    AdoptRoot();
}

/// Takes the form's window in, after it was made anew as well.
void TDesignSurface::AdoptRoot() {
    if (!HandleAllocated()) return;
    FDrag = TDrag::None;
    FHandles.Clear();
    FMarks.Clear();
    FBand.Clear();
    FPicture.End();
    FIcons.Clear();
    TDesignRoot& root = Root();
    root.SetDesignHook(this);
    root.SetParentWindow(WindowHandle());
    root.SetBounds(Margin, Margin, root.GetWidth(), root.GetHeight());
    ::ShowWindow(root.WindowHandle(), SW_SHOWNA);
    FitToRoot();
    UpdateMarks();
}

void TDesignSurface::FitToRoot() {
    SetBounds(GetLeft(), GetTop(), Root().GetWidth() + 2 * Margin, Root().GetHeight() + 2 * Margin);
}

void TDesignSurface::RootResized() {
    FDocument.Edit(L"Größe ändern", [] {});
    FitToRoot();
    UpdateMarks();
}

void TDesignSurface::SetTool(const TMetaClass* value) {
    CancelDrag();
    FTool = value;
}

// --- what stands where

TControl& TDesignSurface::ControlAt(TPoint point) const {
    TControl* control = Root().ControlAtPos(point, true, true, true);
    while (control && control != &Root() && IsPartOf(*control, Root()))
        control = control->GetParent();
    return control ? *control : Root();
}

TComponent* TDesignSurface::ItemAt(TPoint point) const {
    for (int i = Root().GetComponentCount() - 1; i >= 0; --i) {
        TComponent* component = Root().GetComponent(i);
        if (TComponentIcons::IsShownByIcon(*component) &&
            TComponentIcons::PlaceOf(*component).Contains(point))
            return component;
    }
    TControl& control = ControlAt(point);
    return &control == &Root() ? nullptr : &control;
}

TRect TDesignSurface::PlaceInForm(const TComponent& component) const {
    const auto* control = dynamic_cast<const TControl*>(&component);
    if (!control) return TComponentIcons::PlaceOf(component);
    TRect place = control->GetBoundsRect();
    if (control->GetParent() && control->GetParent() != &Root()) {
        const TPoint origin = ToForm(control->GetParent()->ClientToScreen({0, 0}));
        place.Offset(origin.X, origin.Y);
    }
    return place;
}

/// Where its parents let a control be seen.
TRect TDesignSurface::AreaShowing(const TControl& control) const {
    TRect area = Root().GetClientRect();
    for (const TWinControl* parent = control.GetParent(); parent && parent != &Root();
         parent = parent->GetParent()) {
        const TPoint origin = ToForm(parent->ClientToScreen({0, 0}));
        TRect client = parent->GetClientRect();
        client.Offset(origin.X, origin.Y);
        area = area.Intersect(client);
    }
    return area;
}

std::optional<int> TDesignSurface::HandleUnder(TPoint point) const {
    const TSelection& selection = FDocument.Selection();
    if (IsLocked || selection.Items().size() != 1 || !dynamic_cast<const TControl*>(selection.Leader()))
        return std::nullopt;
    return HandleAt(PlaceInForm(*selection.Leader()), point);
}

void TDesignSurface::UpdateMarks() {
    if (!HandleAllocated()) return;
    FitToRoot();
    const HWND window = Root().WindowHandle();
    FIcons.Show(Root());
    std::vector<TRect> handles;
    std::vector<TRect> marks;
    const TSelection& selection = FDocument.Selection();
    for (const TComponent* component : selection.Items()) {
        if (!dynamic_cast<const TControl*>(component) && !TComponentIcons::IsShownByIcon(*component))
            continue;
        const auto around = HandlesAround(PlaceInForm(*component));
        const bool isSized =
            !IsLocked && selection.Items().size() == 1 && dynamic_cast<const TControl*>(component);
        const bool leads = selection.Items().size() > 1 && component == selection.Leader();
        for (std::size_t i = 0; i < around.size(); ++i) {
            if (isSized || (leads && i % 2 == 0))
                handles.push_back(around[i]);
            else if (i % 2 == 0)
                marks.push_back(around[i]);
        }
    }
    FHandles.Show(window, handles);
    FMarks.Show(window, marks);
}

// --- messages of the form

bool TDesignSurface::IsDesignMsg(TControl* sender, TMessage& message) {
    switch (message.Msg) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
        case WM_MOUSEMOVE: {
            if (WantsMouseItself(sender, message)) return false;
            const TPoint point = ToForm(sender->ClientToScreen(message.Pos()));
            if (message.Msg == WM_MOUSEMOVE) return true;
            if (message.Msg == WM_LBUTTONDBLCLK) {
                TComponent* item = ItemAt(point);
                OnOpenItem(item ? item : &Root());
                return true;
            }
            SetFocus();
            if (message.Msg == WM_LBUTTONDOWN)
                Press(point, KeyboardShiftState());
            else
                ChooseAt(point);
            return true;
        }
        case WM_LBUTTONUP:
            return !WantsMouseItself(sender, message);
        case WM_RBUTTONUP:
            OnMenu(sender->ClientToScreen(message.Pos()));
            return true;
        case WM_CONTEXTMENU:
            return true;
        case WM_SETCURSOR:
            if (static_cast<short>(LOWORD(message.LParam)) != HTCLIENT) return false;
            SetPointer(ToForm(Mouse().GetCursorPos()));
            message.Result = 1;
            return true;
        default:
            return TakeFrameMessage(sender, message);
    }
}

/// The frame of the form: it can be sized to the right and down, everything else only chooses the form.
bool TDesignSurface::TakeFrameMessage(TControl* sender, TMessage& message) {
    if (sender != &Root()) return false;
    switch (message.Msg) {
        case WM_NCLBUTTONDOWN:
            FDocument.Selection().Clear();
            SetFocus();
            return message.WParam != HTRIGHT && message.WParam != HTBOTTOM && message.WParam != HTBOTTOMRIGHT;
        case WM_NCLBUTTONDBLCLK:
        case WM_NCRBUTTONDOWN:
        case WM_NCRBUTTONUP:
        case WM_SYSCOMMAND:
            return message.Msg != WM_SYSCOMMAND || (message.WParam & 0xFFF0) != SC_SIZE;
        case WM_EXITSIZEMOVE:
            RootResized();
            return false;
        default:
            return false;
    }
}

bool TDesignSurface::WantsMouseItself(TControl* sender, const TMessage& message) const {
    return !FTool && FDrag == TDrag::None &&
           sender->Perform(CM_DESIGNHITTEST, message.WParam, message.LParam) != 0;
}

void TDesignSurface::SetPointer(TPoint point) {
    TCursor cursor = crArrow;
    if (FTool)
        cursor = crCross;
    else if (const auto handle = HandleUnder(point))
        cursor = HandleCursor(*handle);
    ::SetCursor(AppServices().CursorHandle(cursor));
}

void TDesignSurface::PaintGrid() {
    TCanvas& canvas = Root().GetCanvas();
    const TRect area = canvas.GetClipRect().Intersect(Root().GetClientRect());
    canvas.GetBrush().SetColor(Root().GetColor());
    canvas.FillRect(area);
    if (!ShowGrid) return;
    // The grid may show without being snapped to.
    const int grid = Snapping.Grid > 1 ? Snapping.Grid : TSnapping().Grid;
    const auto firstFrom = [grid](int begin) { return (begin + grid - 1) / grid * grid; };
    const COLORREF dot = ColorToRGB(GetQV7SkinColorLinkText());
    for (int y = firstFrom(area.Top); y < area.Bottom; y += grid)
        for (int x = firstFrom(area.Left); x < area.Right; x += grid)
            ::SetPixelV(canvas.GetHandle(), x, y, dot);
}

void TDesignSurface::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_GETDLGCODE:
            message.Result = DLGC_WANTARROWS | DLGC_WANTTAB;
            return;
        case WM_CAPTURECHANGED:
            TCustomControl::Dispatch(message);
            CancelDrag();
            return;
        default:
            TCustomControl::Dispatch(message);
    }
}

void TDesignSurface::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    TCustomControl::MouseDown(button, shift, x, y);
    SetFocus();
    FDocument.Selection().Clear();
}

void TDesignSurface::MouseMove(TShiftState shift, int x, int y) {
    TCustomControl::MouseMove(shift, x, y);
    if (FDrag != TDrag::None) Drag(ToForm(ClientToScreen({x, y})));
}

void TDesignSurface::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
    TCustomControl::MouseUp(button, shift, x, y);
    if (button == mbLeft && FDrag != TDrag::None) Drop(ToForm(ClientToScreen({x, y})), shift);
}

void TDesignSurface::KeyDown(WORD& key, TShiftState shift) {
    TCustomControl::KeyDown(key, shift);
    if (FDrag != TDrag::None) {
        // Nothing else may change what is dragged.
        if (key == VK_ESCAPE) CancelDrag();
        return;
    }
    const bool sizing = shift.Contains(ssShift);
    // With Ctrl to the pixel, else to the next point of the grid.
    const int step = shift.Contains(ssCtrl) ? 1 : Snapping.Grid;
    switch (key) {
        case VK_LEFT:
            return Nudge(-step, 0, sizing);
        case VK_RIGHT:
            return Nudge(step, 0, sizing);
        case VK_UP:
            return Nudge(0, -step, sizing);
        case VK_DOWN:
            return Nudge(0, step, sizing);
        case VK_DELETE:
            return DeleteChosen();
        case VK_TAB:
            return ChooseNext(FDocument, shift.Contains(ssShift) ? -1 : 1);
        case VK_ESCAPE:
            return Leave();
        default:
            return;
    }
}

/// Gives up the tool, else goes up to what the leader stands in.
void TDesignSurface::Leave() {
    if (!FTool) return ChooseParent(FDocument);
    FTool = nullptr;
    OnToolLeft();
}

/// A press on one of several that moved nothing lets that one lead.
void TDesignSurface::LeadAt(TPoint point, TShiftState shift) {
    if (!FEdges.IsNone() || shift.Contains(ssShift)) return;
    if (TComponent* item = ItemAt(point)) FDocument.Selection().Lead(item);
}

void TDesignSurface::DeleteChosen() {
    try {
        DeleteSelection(FDocument);
    } catch (const Exception& error) {
        if (!OnRefused) throw;
        OnRefused(error.Message());
    }
}

void TDesignSurface::Nudge(int dx, int dy, bool sizing) {
    if (IsLocked || FDocument.Selection().IsEmpty()) return;
    if (sizing)
        GrowSelection(FDocument, dx, dy);
    else
        MoveSelection(FDocument, dx, dy);
}

}  // namespace designer
