#include "platform/vcl/stdctrls/Splitter.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/SplitterBar.h"

namespace vcl {
namespace {

constexpr std::array StyleNames{L"rsNone", L"rsLine", L"rsUpdate", L"rsPattern"};
constexpr int Thickness = 3;

/// Where the splitter goes when the control behind it grows by some pixels.
TPoint WayOfSplitter(TAlign align, int growth) {
    switch (align) {
        case alLeft:
            return {growth, 0};
        case alRight:
            return {-growth, 0};
        case alTop:
            return {0, growth};
        default:
            return {0, -growth};
    }
}

/// The place of a control of another size that keeps to its edge of the parent.
TRect Resized(TRect bounds, TAlign align, int size) {
    switch (align) {
        case alLeft:
            bounds.Right = bounds.Left + size;
            break;
        case alRight:
            bounds.Left = bounds.Right - size;
            break;
        case alTop:
            bounds.Bottom = bounds.Top + size;
            break;
        default:
            bounds.Top = bounds.Bottom - size;
            break;
    }
    return bounds;
}

/// Whether the parent has this control; asks the parent alone.
bool IsChild(const TWinControl& parent, const TControl* control) {
    for (int i = 0; i < parent.GetControlCount(); ++i) {
        if (parent.GetControl(i) == control) return true;
    }
    return false;
}

/// Puts off the layout of a parent's children to the end of the scope.
class TLayoutPause {
public:
    explicit TLayoutPause(TWinControl& parent) : FParent(parent), FGuard(parent) { FParent.DisableAlign(); }
    ~TLayoutPause() noexcept(false) {
        if (FGuard.IsAlive()) FParent.EnableAlign();
    }
    TLayoutPause(const TLayoutPause&) = delete;
    TLayoutPause& operator=(const TLayoutPause&) = delete;

private:
    TWinControl& FParent;
    TLifeGuard FGuard;
};

bool IsAlignedAlong(const TControl& control, bool upright) {
    const TAlign align = control.GetAlign();
    return upright ? align == alLeft || align == alRight : align == alTop || align == alBottom;
}

}  // namespace

std::span<const wchar_t* const> TEnumNames<TResizeStyle>::Names() {
    return StyleNames;
}

const TMetaClass& TSplitter::StaticClass() {
    using C = TSplitter;
    static const TMetaClass meta =
        DefineClass<C>(L"TSplitter", TGraphicControl::StaticClass())
            .Property(L"Align", &C::GetAlign, &C::SetAlign, alLeft)
            .Property(L"AutoSnap", &C::GetAutoSnap, &C::SetAutoSnap, true)
            .Property(L"Beveled", &C::GetBeveled, &C::SetBeveled, false)
            .Property(L"Constraints", &C::GetConstraints, &C::SetConstraints)
            .With(ParentColorRows)
            .Property(L"Cursor", &C::GetCursor, &C::SetCursor, crHSplit)
            .Identifiers(CursorIdentifiers())
            .Property(L"MinSize", &C::GetMinSize, &C::SetMinSize, 30)
            .Property(L"ParentShowHint", &C::GetParentShowHint, &C::SetParentShowHint, true)
            .Property(L"ResizeStyle", &C::GetResizeStyle, &C::SetResizeStyle, rsPattern)
            .Property(L"ShowHint", &C::GetShowHint, &C::SetShowHint)
            .Stored(&C::IsShowHintStored)
            .Property(L"Visible", &C::GetVisible, &C::SetVisible, true)
            .Event(L"OnCanResize", &C::OnCanResize)
            .Event(L"OnMoved", &C::OnMoved)
            .Event(L"OnPaint", &C::OnPaint);
    return meta;
}

TSplitter::TSplitter(TComponent* AOwner) : TGraphicControl(AOwner) {
    ControlStyle.Include(csOpaque);
    SetBounds(0, 0, Thickness, 100);
    SetAlign(alLeft);
    SetCursor(crHSplit);
}

void TSplitter::SetBeveled(bool value) {
    if (value == FBeveled) return;
    FBeveled = value;
    Invalidate();
}

void TSplitter::SetMinSize(int value) {
    FMinSize = std::max(value, 1);
}

void TSplitter::SetResizeStyle(TResizeStyle value) {
    FResizeStyle = value;
}

/// A splitter that comes to lie the other way takes its thickness and its cursor along, also when it was not
/// aligned in between.
void TSplitter::RequestAlign() {
    const bool lies = GetAlign() == alTop || GetAlign() == alBottom;
    const bool isAligned = lies || IsUpright();
    const bool wasAligned = std::exchange(FWasAligned, isAligned);
    if (isAligned && FWasUpright == lies) {
        FWasUpright = !lies;
        if (GetCursor() == crHSplit || GetCursor() == crVSplit) SetCursor(lies ? crVSplit : crHSplit);
        if (!wasAligned && !IsInState(csLoading))
            return SetBounds(GetLeft(), GetTop(), GetHeight(), GetWidth());
    }
    TGraphicControl::RequestAlign();
}

void TSplitter::Paint() {
    TCanvas& canvas = GetCanvas();
    TRect rect = GetClientRect();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(GetColor());
    canvas.FillRect(rect);
    if (FBeveled) {
        const bool upright = IsUpright();
        canvas.GetBrush().SetColor(clBtnHighlight);
        canvas.FillRect(upright ? TRect{0, 0, 1, rect.Bottom} : TRect{0, 0, rect.Right, 1});
        canvas.GetBrush().SetColor(clBtnShadow);
        canvas.FillRect(upright ? TRect{rect.Right - 1, 0, rect.Right, rect.Bottom}
                                : TRect{0, rect.Bottom - 1, rect.Right, rect.Bottom});
    }
    OnPaint(this);
}

// --- what is resized, and how far

int TSplitter::SizeOf(const TControl& control) const {
    return IsUpright() ? control.GetWidth() : control.GetHeight();
}

TControl* TSplitter::FindControl() const {
    const TWinControl* parent = GetParent();
    if (!parent) return nullptr;
    TControl* found = nullptr;
    for (int i = 0; i < parent->GetControlCount(); ++i) {
        TControl* control = parent->GetControl(i);
        if (control->GetAlign() != GetAlign() || !control->IsShown() || !StandsBehind(*control)) continue;
        if (dynamic_cast<const TSplitter*>(control)) continue;
        // One that is shut has the same edge as its neighbour further out.
        if (!found || SizeOf(*control) == 0) found = control;
    }
    return found;
}

/// Whether the control ends where the splitter begins, seen from their edge of the parent.
bool TSplitter::StandsBehind(const TControl& control) const {
    const TRect own = GetBoundsRect();
    const TRect other = control.GetBoundsRect();
    switch (GetAlign()) {
        case alLeft:
            return other.Right == own.Left;
        case alRight:
            return other.Left == own.Right;
        case alTop:
            return other.Bottom == own.Top;
        case alBottom:
            return other.Top == own.Bottom;
        default:
            return false;
    }
}

/// What all other aligned controls leave.
int TSplitter::MaxSize() const {
    const TWinControl& parent = *GetParent();
    int free = IsUpright() ? parent.GetClientWidth() : parent.GetClientHeight();
    for (int i = 0; i < parent.GetControlCount(); ++i) {
        const TControl& control = *parent.GetControl(i);
        if (&control != FControl && control.IsShown() && IsAlignedAlong(control, IsUpright()))
            free -= SizeOf(control);
    }
    return std::max(free, 0);
}

bool TSplitter::DoCanResize(int& NewSize) {
    bool accepted = true;
    const TLifeGuard guard(*this);
    OnCanResize(this, NewSize, accepted);
    if (!guard.IsAlive()) return false;
    if (accepted && FAutoSnap && NewSize <= FMinSize) NewSize = 0;
    return accepted;
}

// --- dragging

void TSplitter::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TGraphicControl::MouseDown(button, shift, x, y);
    if (!guard.IsAlive()) return;
    if (IsInSizing() || button != mbLeft) return;
    if (TControl* control = FindControl()) BeginSizing(*control, ClientToParent({x, y}));
}

void TSplitter::BeginSizing(TControl& control, TPoint mouse) {
    FControl = &control;
    FControl->FreeNotification(this);
    FPressed = mouse;
    FOldSize = FNewSize = SizeOf(control);
    ShowBar();
}

void TSplitter::MouseMove(TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TGraphicControl::MouseMove(shift, x, y);
    if (!guard.IsAlive() || !IsInSizing()) return;
    if (shift.Contains(ssLeft))
        MoveTo(ClientToParent({x, y}));
    else
        EndSizing();
}

/// Takes the splitter to the mouse, as far as it may go there; false when a handler freed it.
bool TSplitter::MoveTo(TPoint mouse) {
    const int way = IsUpright() ? mouse.X - FPressed.X : mouse.Y - FPressed.Y;
    const bool grows = GetAlign() == alLeft || GetAlign() == alTop;
    int size = std::max(std::min(FOldSize + (grows ? way : -way), MaxSize()), FMinSize);
    const TLifeGuard guard(*this);
    const bool accepted = DoCanResize(size);
    if (!guard.IsAlive()) return false;
    if (!accepted || !IsInSizing() || !GetParent()) return true;
    size = std::max(size, 0);
    if (FResizeStyle == rsUpdate) return ApplySize(size);
    if (size == FNewSize) return true;
    HideBar();
    FNewSize = size;
    ShowBar();
    return true;
}

/// Gives the control its size; false when a handler freed the splitter.
bool TSplitter::ApplySize(int size) {
    FNewSize = size;
    if (SizeOf(*FControl) == size) return true;
    const TLifeGuard guard(*this);
    {
        const TLayoutPause pause(*GetParent());
        ResizeControl(size);
    }
    if (!guard.IsAlive()) return false;
    Update();
    return guard.IsAlive() && Raise(OnMoved);
}

/// Moves the edge between the control and the splitter, and all that lies further inside, so that the layout
/// finds everything in its order.
void TSplitter::ResizeControl(int size) {
    const TLifeGuard guard(*this);
    const int before = SizeOf(*FControl);
    FControl->SetBoundsRect(Resized(FControl->GetBoundsRect(), GetAlign(), size));
    if (!guard.IsAlive() || !FControl) return;
    // Its constraints may have made it another size.
    const int now = SizeOf(*FControl);
    if (now != size) {
        FControl->SetBoundsRect(Resized(FControl->GetBoundsRect(), GetAlign(), now));
        if (!guard.IsAlive() || !FControl) return;
    }
    MoveInside(WayOfSplitter(GetAlign(), now - before));
}

void TSplitter::MoveInside(TPoint way) {
    std::vector<TControl*> inside;
    for (int i = 0; i < GetParent()->GetControlCount(); ++i) {
        TControl* control = GetParent()->GetControl(i);
        if (control != this && control != FControl && control->GetAlign() == GetAlign() &&
            LiesInside(*control))
            inside.push_back(control);
    }
    inside.push_back(this);
    const TLifeGuard guard(*this);
    for (TControl* control : inside) {
        // A handler of the one before may have freed this one.
        if (!guard.IsAlive() || !GetParent()) return;
        if (!IsChild(*GetParent(), control)) continue;
        const TRect r = control->GetBoundsRect();
        control->SetBounds(r.Left + way.X, r.Top + way.Y, r.Width(), r.Height());
    }
}

/// Whether the control stands further from the edge than the splitter does.
bool TSplitter::LiesInside(const TControl& control) const {
    const TRect own = GetBoundsRect();
    const TRect other = control.GetBoundsRect();
    // One that is shut at the splitter's outer edge lies outside.
    switch (GetAlign()) {
        case alLeft:
            return other.Right > own.Left && other.Left >= own.Left;
        case alRight:
            return other.Left < own.Right && other.Right <= own.Right;
        case alTop:
            return other.Bottom > own.Top && other.Top >= own.Top;
        case alBottom:
            return other.Top < own.Bottom && other.Bottom <= own.Bottom;
        default:
            return false;
    }
}

void TSplitter::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TGraphicControl::MouseUp(button, shift, x, y);
    if (guard.IsAlive() && IsInSizing() && button == mbLeft) EndSizing();
}

/// The mouse was released: what was accepted last becomes true.
void TSplitter::EndSizing() {
    HideBar();
    const TLifeGuard guard(*this);
    if (!ApplySize(FNewSize) || !guard.IsAlive() || !FControl) return;
    FControl->RemoveFreeNotification(this);
    FControl = nullptr;
}

/// The user gave up: everything becomes as it was; false when a handler freed the splitter.
bool TSplitter::CancelSizing() {
    HideBar();
    const TLifeGuard guard(*this);
    if (!ApplySize(FOldSize)) return false;
    if (FControl) FControl->RemoveFreeNotification(this);
    FControl = nullptr;
    if (GetMouseCapture()) SetMouseCapture(false);
    return guard.IsAlive();
}

void TSplitter::Notification(TComponent* component, TOperation operation) {
    TGraphicControl::Notification(component, operation);
    if (operation != opRemove || component != FControl) return;
    HideBar();
    FControl = nullptr;
}

void TSplitter::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case CN_KEYDOWN:
            if (!IsInSizing() || message.CharCode() != VK_ESCAPE) break;
            message.Result = 1;
            CancelSizing();
            return;
        case WM_CAPTURECHANGED:
        case WM_CANCELMODE:
            if (IsInSizing() && !CancelSizing()) return;
            break;
        default:
            break;
    }
    TGraphicControl::Dispatch(message);
}

// --- the bar

TRect TSplitter::BarRect() const {
    TRect bar = GetBoundsRect();
    const TPoint way = WayOfSplitter(GetAlign(), FNewSize - SizeOf(*FControl));
    bar.Offset(way.X, way.Y);
    return bar;
}

void TSplitter::ShowBar() {
    if (FResizeStyle != rsLine && FResizeStyle != rsPattern) return;
    FBar = BarRect();
    FBarIsDotted = FResizeStyle == rsPattern;
    InvertSplitterBar(*GetParent(), FBar, FBarIsDotted);
}

void TSplitter::HideBar() {
    const TRect bar = std::exchange(FBar, {});
    if (!bar.IsEmpty() && GetParent()) InvertSplitterBar(*GetParent(), bar, FBarIsDotted);
}

}  // namespace vcl
