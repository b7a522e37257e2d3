// What the mouse does on the form under design: choose, move, size, draw a band, place.

#include <algorithm>
#include <cstdlib>
#include <set>
#include <utility>

#include "designer/model/Arranging.h"
#include "designer/model/Placing.h"
#include "designer/surface/DesignSurface.h"
#include "designer/surface/Handles.h"
#include "designer/surface/QuietMoves.h"

namespace designer {
namespace {

/// Pixels that the mouse must move before a press becomes a drag.
constexpr int Threshold = 4;

std::vector<TRect> EdgesAsRects(const TRect& r) {
    return {TRect::OfSize(r.Left, r.Top, r.Width(), 1), TRect::OfSize(r.Left, r.Bottom - 1, r.Width(), 1),
            TRect::OfSize(r.Left, r.Top, 1, r.Height()), TRect::OfSize(r.Right - 1, r.Top, 1, r.Height())};
}

using TMoved = std::vector<std::pair<TComponent*, TRect>>;

std::set<TWinControl*> ParentsOf(const TMoved& moved) {
    std::set<TWinControl*> parents;
    for (const auto& [component, place] : moved) {
        auto* control = dynamic_cast<TControl*>(component);
        if (control && control->GetParent()) parents.insert(control->GetParent());
    }
    return parents;
}

/// Lets parents lay out their controls once, when all of those have moved.
class TLayoutPause {
public:
    explicit TLayoutPause(std::set<TWinControl*> parents) : FParents(std::move(parents)) {
        for (TWinControl* parent : FParents)
            parent->DisableAlign();
    }
    ~TLayoutPause() {
        for (TWinControl* parent : FParents)
            parent->EnableAlign();
    }
    TLayoutPause(const TLayoutPause&) = delete;
    TLayoutPause& operator=(const TLayoutPause&) = delete;

private:
    std::set<TWinControl*> FParents;
};

std::vector<TRect> LinesOf(const std::vector<TGuide>& guides) {
    std::vector<TRect> lines;
    for (const TGuide& guide : guides)
        lines.push_back(guide.Line);
    return lines;
}

TRect Shifted(TRect r, int dx, int dy) {
    r.Offset(dx, dy);
    return r;
}

}  // namespace

void TDesignSurface::Press(TPoint point, TShiftState shift) {
    if (FDrag != TDrag::None) return;
    FStart = point;
    FEdges = {};
    SetMouseCapture(true);
    if (FTool) {
        FDrag = TDrag::Placing;
        return;
    }
    if (const auto handle = HandleUnder(point)) {
        FEdges = EdgesOf(*handle);
        FDrag = TDrag::Pressed;
        return;
    }
    TSelection& selection = FDocument.Selection();
    TComponent* item = ItemAt(point);
    if (!item || shift.Contains(ssCtrl)) {
        FDrag = TDrag::Band;
        if (!shift.Contains(ssShift)) selection.Clear();
        return;
    }
    if (shift.Contains(ssShift))
        selection.Toggle(item);
    else if (!selection.Contains(item))
        selection.SetOnly(item);
    FDrag = TDrag::Pressed;
}

/// What a menu will be about: something else only when that is not chosen yet.
void TDesignSurface::ChooseAt(TPoint point) {
    TSelection& selection = FDocument.Selection();
    TComponent* item = ItemAt(point);
    if (!item)
        selection.Clear();
    else if (!selection.Contains(item))
        selection.SetOnly(item);
}

void TDesignSurface::Drag(TPoint point) {
    const bool isFar = std::abs(point.X - FStart.X) >= Threshold || std::abs(point.Y - FStart.Y) >= Threshold;
    switch (FDrag) {
        case TDrag::Pressed:
            if (isFar) BeginDrag(point);
            return;
        case TDrag::Moving:
            return MoveTo(point);
        case TDrag::Sizing:
            return SizeTo(point);
        case TDrag::Band:
        case TDrag::Placing:
            return ShowBand(point);
        case TDrag::None:
            return;
    }
}

void TDesignSurface::BeginDrag(TPoint point) {
    if (IsLocked || FDocument.Selection().IsEmpty()) return;
    CollectMoved();
    CollectOthers();
    if (FMoved.empty()) return;
    FLeader = PlaceInForm(*FMoved.front().first);
    FGoal = FLeader;
    try {
        BeginPicture();
    } catch (...) {
        CancelDrag();
        throw;
    }
    FDrag = FEdges.IsNone() ? TDrag::Moving : TDrag::Sizing;
    Drag(point);
}

void TDesignSurface::CollectMoved() {
    FMoved.clear();
    const TSelection& selection = FDocument.Selection();
    for (TComponent* component : selection.Items()) {
        bool movesWithParent = false;
        for (const TComponent* parent = component->GetParentComponent(); parent;
             parent = parent->GetParentComponent())
            movesWithParent = movesWithParent || selection.Contains(parent);
        if (!movesWithParent) FMoved.emplace_back(component, designer::PlaceOf(*component));
    }
}

/// The siblings of the leader that stay.
void TDesignSurface::CollectOthers() {
    FOthers.clear();
    const auto* leader = FMoved.empty() ? nullptr : dynamic_cast<const TControl*>(FMoved.front().first);
    if (!leader) return;
    const TWinControl& parent = leader->GetParent() ? *leader->GetParent() : Root();
    for (int i = 0; i < parent.GetControlCount(); ++i) {
        const TControl& sibling = *parent.GetControl(i);
        if (sibling.GetOwner() == &Root() && !FDocument.Selection().Contains(&sibling))
            FOthers.push_back(PlaceInForm(sibling));
    }
}

/// Where everything stands that may move with what is dragged: its siblings give way when they are aligned.
std::vector<TRect> TDesignSurface::PlacesAround() const {
    std::vector<TRect> places;
    for (const auto& [component, place] : FMoved)
        places.push_back(PlaceInForm(*component));
    for (const TWinControl* parent : ParentsOf(FMoved)) {
        const TPoint origin = parent == &Root() ? TPoint() : ToForm(parent->ClientToScreen({0, 0}));
        for (int i = 0; i < parent->GetControlCount(); ++i)
            places.push_back(Shifted(parent->GetControl(i)->GetBoundsRect(), origin.X, origin.Y));
    }
    return places;
}

void TDesignSurface::BeginPicture() {
    FHandles.Hide();
    FMarks.Hide();
    FAround = PlacesAround();
    std::vector<TDragPicture::TPiece> pieces;
    for (const auto& [component, place] : FMoved) {
        auto* control = dynamic_cast<TControl*>(component);
        if (!control) control = FIcons.Find(*component);
        if (control) pieces.push_back({control, PlaceInForm(*component), AreaShowing(*control)});
    }
    FPicture.Begin(Root(), pieces);
}

/// Gives what was dragged its places, and lets the form show itself again, all at once.
void TDesignSurface::EndPicture(const std::vector<TRect>& places) {
    TQuietMoves quiet(Root());
    quiet.Touch(FPicture.Touched());
    FPicture.End();
    {
        const TLayoutPause pause(ParentsOf(FMoved));
        for (std::size_t i = 0; i < places.size(); ++i)
            SetPlaceOf(*FMoved[i].first, places[i]);
    }
    const std::vector<TRect> around = PlacesAround();
    for (std::size_t i = 0; i < around.size(); ++i) {
        if (around[i] == FAround[i]) continue;
        quiet.Touch(around[i]);
        quiet.Touch(FAround[i]);
    }
    FIcons.Show(Root());
    quiet.Show();
}

/// The place of something dragged, in its parent, when the leader stands at its goal.
TRect TDesignSurface::GoalOf(const TRect& place) const {
    return Shifted(place, FGoal.Left - FLeader.Left, FGoal.Top - FLeader.Top);
}

void TDesignSurface::MoveTo(TPoint point) {
    const TPoint distance{point.X - FStart.X, point.Y - FStart.Y};
    FGoal = Snapped(Shifted(FLeader, distance.X, distance.Y), {}, FOthers, Snapping);
    FPicture.Show({FGoal.Left - FLeader.Left, FGoal.Top - FLeader.Top}, LinesOf(GuidesOf(FGoal, FOthers)));
    OnDragged(GoalOf(FMoved.front().second));
}

/// The control is sized at once, so that its picture shows what the size makes of it.
void TDesignSurface::SizeTo(TPoint point) {
    const TRect wanted = WithEdgesMoved(FLeader, FEdges, point.X - FStart.X, point.Y - FStart.Y);
    const auto& [component, place] = FMoved.front();
    const TRect snapped = Snapped(wanted, FEdges, FOthers, Snapping);
    SetPlaceOf(*component, Shifted(snapped, place.Left - FLeader.Left, place.Top - FLeader.Top));
    FPicture.TakeAgain(PlaceInForm(*component));
    FPicture.Show({}, LinesOf(GuidesOf(snapped, FOthers)));
    OnDragged(designer::PlaceOf(*component));
}

TRect TDesignSurface::Band(TPoint point) const {
    return {std::min(FStart.X, point.X), std::min(FStart.Y, point.Y), std::max(FStart.X, point.X),
            std::max(FStart.Y, point.Y)};
}

void TDesignSurface::ShowBand(TPoint point) {
    FBand.Show(Root().WindowHandle(), EdgesAsRects(Band(point)));
}

void TDesignSurface::Drop(TPoint point, TShiftState shift) {
    const TDrag drag = FDrag;
    // The end of the capture must not take it for a break.
    FDrag = TDrag::None;
    SetMouseCapture(false);
    FBand.Hide();
    switch (drag) {
        case TDrag::Moving:
            FDocument.Edit(L"Verschieben", [this] {
                std::vector<TRect> places;
                for (const auto& [component, place] : FMoved)
                    places.push_back(GoalOf(place));
                EndPicture(places);
            });
            break;
        case TDrag::Sizing:
            FDocument.Edit(L"Größe ändern", [this] { EndPicture({}); });
            break;
        case TDrag::Band: {
            const TRect band = Band(point);
            if (band.Width() >= Threshold || band.Height() >= Threshold) {
                FStart = band.TopLeft();
                FLeader = band;
                ChooseInBand(shift.Contains(ssShift));
            }
            break;
        }
        case TDrag::Placing:
            PlaceTool(point);
            break;
        case TDrag::Pressed:
            LeadAt(point, shift);
            break;
        default:
            break;
    }
    UpdateMarks();
}

void TDesignSurface::ChooseInBand(bool adding) {
    TSelection& selection = FDocument.Selection();
    std::vector<TComponent*> chosen;
    if (adding) chosen.assign(selection.Items().begin(), selection.Items().end());
    // The band chooses among what stands in the control that it began on.
    const TWinControl& parent = AcceptingParent(ControlAt(FStart));
    for (int i = 0; i < Root().GetComponentCount(); ++i) {
        TComponent* component = Root().GetComponent(i);
        const auto* control = dynamic_cast<const TControl*>(component);
        const bool isCandidate =
            control ? control->GetParent() == &parent : TComponentIcons::IsShownByIcon(*component);
        if (!isCandidate || FLeader.Intersect(PlaceInForm(*component)).IsEmpty()) continue;
        if (std::ranges::find(chosen, component) == chosen.end()) chosen.push_back(component);
    }
    selection.Set(std::move(chosen));
}

void TDesignSurface::PlaceTool(TPoint point) {
    const TMetaClass* tool = FTool;
    TRect place = Band(point);
    if (place.Width() < Threshold && place.Height() < Threshold)
        place = {FStart.X, FStart.Y, FStart.X, FStart.Y};
    TWinControl& parent = AcceptingParent(ControlAt(FStart));
    const TPoint origin = ToForm(parent.ClientToScreen({0, 0}));
    place.Offset(-origin.X, -origin.Y);
    if (place.IsEmpty()) {
        place = Snapped(place, {}, {}, Snapping);
    } else {
        place = Snapped(place, {.Left = true, .Top = true}, {}, Snapping);
        place = Snapped(place, {.Right = true, .Bottom = true}, {}, Snapping);
    }
    FTool = nullptr;
    designer::Place(FDocument, *tool, parent, place);
    OnToolUsed();
}

bool TDesignSurface::CancelDrag() {
    if (FDrag == TDrag::None) return false;
    FDrag = TDrag::None;
    if (GetMouseCapture()) SetMouseCapture(false);
    if (FPicture.IsShown()) {
        std::vector<TRect> places;
        for (const auto& [component, place] : FMoved)
            places.push_back(place);
        EndPicture(places);
    }
    FBand.Hide();
    UpdateMarks();
    return true;
}

}  // namespace designer
