#include "platform/vcl/controls/ScrollingWinControl.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"

namespace vcl {

/// Keeps the scroll bars from being set again by what setting them causes.
class TScrollingWinControl::TUpdateScope {
public:
    explicit TUpdateScope(TScrollingWinControl& control) : FControl(control), FGuard(control) {
        control.FUpdating = true;
    }
    ~TUpdateScope() {
        if (FGuard.IsAlive()) FControl.FUpdating = false;
    }
    TUpdateScope(const TUpdateScope&) = delete;
    TUpdateScope& operator=(const TUpdateScope&) = delete;
    [[nodiscard]] bool IsAlive() const { return FGuard.IsAlive(); }

private:
    TScrollingWinControl& FControl;
    TLifeGuard FGuard;
};

const TMetaClass& TScrollingWinControl::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TScrollingWinControl>(L"TScrollingWinControl", TWinControl::StaticClass());
    return meta;
}

TScrollingWinControl::TScrollingWinControl(TComponent* AOwner)
    : TWinControl(AOwner),
      FHorzScrollBar(std::make_unique<TControlScrollBar>(*this, sbHorizontal)),
      FVertScrollBar(std::make_unique<TControlScrollBar>(*this, sbVertical)) {
    ControlStyle.Include(csAcceptsControls);
}

TScrollingWinControl::~TScrollingWinControl() = default;

void TScrollingWinControl::CreateWnd() {
    FHorzScrollBar->FToldWindow = FVertScrollBar->FToldWindow = nullptr;
    TWinControl::CreateWnd();
}

void TScrollingWinControl::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_HSCROLL:
        case WM_VSCROLL:
            // With a window it is about a scroll bar that is a control of its own.
            if (message.LParam != 0) return TWinControl::Dispatch(message);
            (message.Msg == WM_VSCROLL ? FVertScrollBar : FHorzScrollBar)->HandleMessage(message);
            return;
        default:
            TWinControl::Dispatch(message);
    }
}

void TScrollingWinControl::SetAutoScroll(bool value) {
    if (value == FAutoScroll) return;
    FAutoScroll = value;
    AutoScrollRange();
}

void TScrollingWinControl::EnableAutoRange() {
    if (FAutoRangeCount > 0 && --FAutoRangeCount == 0) AutoScrollRange();
}

void TScrollingWinControl::Loaded() {
    const TLifeGuard guard(*this);
    TWinControl::Loaded();
    if (!guard.IsAlive()) return;
    if (FAutoScroll)
        AutoScrollRange();
    else
        UpdateScrollBars();
}

// --- Ranges

int TScrollingWinControl::RangeOfChildren(TScrollBarKind kind) const {
    const bool down = kind == sbVertical;
    const int origin = (down ? FVertScrollBar : FHorzScrollBar)->GetPosition();
    int range = 0;
    int atFarEdge = 0;
    for (int i = 0; i < GetControlCount(); ++i) {
        const TControl& child = *GetControl(i);
        if (!child.IsShown()) continue;
        const TAlign align = child.GetAlign();
        const int end = down ? child.GetTop() + child.GetHeight() : child.GetLeft() + child.GetWidth();
        if (align == (down ? alBottom : alRight)) {
            atFarEdge += down ? child.GetHeight() : child.GetWidth();
        } else if (align == (down ? alTop : alLeft)) {
            range = std::max(range, origin + end);
        } else if (align == alNone || align == alCustom) {
            // What follows the far edge asks for no room.
            const TAnchors anchors = child.GetAnchors();
            if (anchors.Contains(down ? akTop : akLeft) && !anchors.Contains(down ? akBottom : akRight))
                range = std::max(range, origin + end);
        }
    }
    return range + atFarEdge;
}

void TScrollingWinControl::AutoScrollRange() {
    if (!FAutoScroll || FAutoRangeCount > 0 || IsInState(csLoading) || FUpdating) return;
    for (const auto* bar : {&FHorzScrollBar, &FVertScrollBar}) {
        const int range = RangeOfChildren((*bar)->GetKind());
        (*bar)->FRange = range > 0 ? range + (*bar)->GetMargin() : 0;
    }
    UpdateScrollBars();
}

TSize TScrollingWinControl::SizeWithoutBars() const {
    const TRect client = GetClientRect();
    TSize size{client.Width(), client.Height()};
    if (!HandleAllocated()) return size;
    const auto style = static_cast<DWORD>(::GetWindowLongW(WindowHandle(), GWL_STYLE));
    if (style & WS_VSCROLL) size.Width += ::GetSystemMetrics(SM_CXVSCROLL);
    if (style & WS_HSCROLL) size.Height += ::GetSystemMetrics(SM_CYHSCROLL);
    return size;
}

void TScrollingWinControl::UpdateScrollBars() {
    if (FUpdating || IsInState(csLoading)) return;
    const TUpdateScope updating(*this);
    TSize room = SizeWithoutBars();
    const auto shows = [this](const TControlScrollBar& bar, int length) {
        if (!bar.GetVisible()) return false;
        return bar.GetRange() > length || (bar.IsScrollBarVisible() && HoldsScrollBar(bar.GetKind()));
    };
    // Each bar takes room from the other axis.
    bool vert = shows(*FVertScrollBar, room.Height);
    const bool horz = shows(*FHorzScrollBar, room.Width - (vert ? ::GetSystemMetrics(SM_CXVSCROLL) : 0));
    if (horz) {
        room.Height -= ::GetSystemMetrics(SM_CYHSCROLL);
        vert = shows(*FVertScrollBar, room.Height);
    }
    if (vert) room.Width -= ::GetSystemMetrics(SM_CXVSCROLL);
    FHorzScrollBar->Show(horz, std::max(room.Width, 0));
    if (updating.IsAlive()) FVertScrollBar->Show(vert, std::max(room.Height, 0));
}

void TScrollingWinControl::Resize() {
    const TLifeGuard guard(*this);
    UpdateScrollBars();
    if (guard.IsAlive()) TWinControl::Resize();
}

void TScrollingWinControl::AlignControls(TControl* control, TRect& rect) {
    const TLifeGuard guard(*this);
    AutoScrollRange();
    if (!guard.IsAlive()) return;
    rect = GetClientRect();
    TWinControl::AlignControls(control, rect);
}

void TScrollingWinControl::AdjustClientRect(TRect& rect) {
    // Children are laid out on the whole content, which starts above and left of what is seen.
    rect =
        TRect::OfSize(-FHorzScrollBar->GetPosition(), -FVertScrollBar->GetPosition(),
                      std::max(rect.Width(), FHorzScrollBar->GetVisible() ? FHorzScrollBar->GetRange() : 0),
                      std::max(rect.Height(), FVertScrollBar->GetVisible() ? FVertScrollBar->GetRange() : 0));
    TWinControl::AdjustClientRect(rect);
}

// --- Scrolling

void TScrollingWinControl::ScrollInView(const TControl* control) {
    if (!control || !control->GetParent()) return;
    TPoint origin{};
    for (const TControl* c = control; c != this; c = c->GetParent()) {
        if (!c) return;  // stands elsewhere
        origin.X += c->GetLeft();
        origin.Y += c->GetTop();
    }
    const TLifeGuard guard(*this);
    const auto bring = [](TControlScrollBar& bar, int start, int length, int seen) {
        start -= bar.GetMargin();
        length += 2 * bar.GetMargin();
        // What fills the whole view is seen, wherever it begins.
        if (start <= 0 && start + length >= seen) return;
        const int end = start + std::min(length, seen);
        if (start < 0)
            bar.SetPosition(bar.GetPosition() + start);
        else if (end > seen)
            bar.SetPosition(bar.GetPosition() + end - seen);
    };
    bring(*FHorzScrollBar, origin.X, control->GetWidth(), GetClientWidth());
    if (guard.IsAlive()) bring(*FVertScrollBar, origin.Y, control->GetHeight(), GetClientHeight());
}

bool TScrollingWinControl::WheelScroll(TControlScrollBar& bar, int wheelDelta) {
    UINT lines = 3;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int notch =
        lines == WHEEL_PAGESCROLL ? bar.GetPageIncrement() : static_cast<int>(lines) * bar.GetIncrement();
    // Fine wheels turn in small steps; what is less than a pixel waits.
    FWheelRest += wheelDelta * notch;
    const int pixels = FWheelRest / WHEEL_DELTA;
    FWheelRest -= pixels * WHEEL_DELTA;
    bar.SetPosition(bar.GetPosition() - pixels);
    return true;
}

bool TScrollingWinControl::DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos) {
    const TLifeGuard guard(*this);
    if (TWinControl::DoMouseWheel(shift, wheelDelta, mousePos) || !guard.IsAlive()) return true;
    if (shift.Contains(ssCtrl)) return false;
    if (FVertScrollBar->GetMaxPosition() > 0) return WheelScroll(*FVertScrollBar, wheelDelta);
    if (FHorzScrollBar->GetMaxPosition() > 0) return WheelScroll(*FHorzScrollBar, wheelDelta);
    return false;
}

}  // namespace vcl
