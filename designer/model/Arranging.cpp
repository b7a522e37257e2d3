#include "designer/model/Arranging.h"

#include <algorithm>

#include "designer/model/Placing.h"
#include "platform/vcl/streaming/UnknownComponent.h"

namespace designer {
namespace {

using TPlaces = std::vector<std::pair<TComponent*, TRect>>;

bool StandsInChosen(const TComponent& component, const TSelection& selection) {
    for (const TComponent* parent = component.GetParentComponent(); parent;
         parent = parent->GetParentComponent())
        if (selection.Contains(parent)) return true;
    return false;
}

/// What stands in a menu or a list has no place on the form.
bool HasPlace(const TComponent& component) {
    return dynamic_cast<const TControl*>(&component) || !component.HasParent() ||
           dynamic_cast<const TUnknownComponent*>(&component);
}

/// What is chosen and does not move with another chosen one, with its place.
TPlaces ChosenPlaces(TDesignDocument& document) {
    TPlaces places;
    const TSelection& selection = document.Selection();
    for (TComponent* component : selection.Items())
        if (HasPlace(*component) && !StandsInChosen(*component, selection))
            places.emplace_back(component, PlaceOf(*component));
    return places;
}

// The two directions in one: where a rectangle begins and how long it is.
int BeginOf(const TRect& r, TDirection direction) {
    return direction == TDirection::Horizontal ? r.Left : r.Top;
}
int LengthOf(const TRect& r, TDirection direction) {
    return direction == TDirection::Horizontal ? r.Width() : r.Height();
}
void MoveBeginTo(TRect& r, TDirection direction, int begin) {
    if (direction == TDirection::Horizontal)
        r.Offset(begin - r.Left, 0);
    else
        r.Offset(0, begin - r.Top);
}

void AlignWith(TRect& r, const TRect& leader, TAlignment alignment) {
    switch (alignment) {
        case TAlignment::Left:
            return r.Offset(leader.Left - r.Left, 0);
        case TAlignment::HorizontalCenter:
            return r.Offset(leader.Left + (leader.Width() - r.Width()) / 2 - r.Left, 0);
        case TAlignment::Right:
            return r.Offset(leader.Right - r.Right, 0);
        case TAlignment::Top:
            return r.Offset(0, leader.Top - r.Top);
        case TAlignment::VerticalCenter:
            return r.Offset(0, leader.Top + (leader.Height() - r.Height()) / 2 - r.Top);
        case TAlignment::Bottom:
            return r.Offset(0, leader.Bottom - r.Bottom);
    }
}

}  // namespace

TRect PlaceOf(const TComponent& component) {
    if (const auto* control = dynamic_cast<const TControl*>(&component)) return control->GetBoundsRect();
    const TPoint corner = DesignPlace(component);
    return TRect::OfSize(corner.X, corner.Y, 0, 0);
}

void SetPlaceOf(TComponent& component, const TRect& place) {
    if (auto* control = dynamic_cast<TControl*>(&component))
        control->SetBoundsRect(place);
    else
        SetDesignPlace(component, place.TopLeft());
}

void SetPlaces(TDesignDocument& document, const String& label,
               std::span<const std::pair<TComponent*, TRect>> places) {
    document.Edit(label, [places] {
        for (const auto& [component, place] : places)
            SetPlaceOf(*component, place);
    });
}

void MoveSelection(TDesignDocument& document, int dx, int dy) {
    TPlaces places = ChosenPlaces(document);
    for (auto& [component, place] : places)
        place.Offset(dx, dy);
    SetPlaces(document, L"Verschieben", places);
}

void GrowSelection(TDesignDocument& document, int dw, int dh) {
    TPlaces places = ChosenPlaces(document);
    std::erase_if(places, [](const auto& entry) { return !dynamic_cast<TControl*>(entry.first); });
    for (auto& [component, place] : places)
        place = TRect::OfSize(place.Left, place.Top, std::max(1, place.Width() + dw),
                              std::max(1, place.Height() + dh));
    SetPlaces(document, L"Größe ändern", places);
}

void AlignSelection(TDesignDocument& document, TAlignment alignment) {
    TPlaces places = ChosenPlaces(document);
    if (places.size() < 2) return;
    for (auto& [component, place] : places)
        AlignWith(place, places.front().second, alignment);
    SetPlaces(document, L"Ausrichten", places);
}

void DistributeSelection(TDesignDocument& document, TDirection direction) {
    TPlaces places = ChosenPlaces(document);
    if (places.size() < 3) return;
    std::ranges::stable_sort(places, {},
                             [direction](const auto& entry) { return BeginOf(entry.second, direction); });
    const TRect& last = places.back().second;
    int room = BeginOf(last, direction) - BeginOf(places.front().second, direction);
    for (std::size_t i = 0; i + 1 < places.size(); ++i)
        room -= LengthOf(places[i].second, direction);

    const int gaps = static_cast<int>(places.size()) - 1;
    int used = 0;
    int begin = BeginOf(places.front().second, direction);
    for (int i = 1; i < gaps; ++i) {
        begin += LengthOf(places[static_cast<std::size_t>(i) - 1].second, direction);
        MoveBeginTo(places[static_cast<std::size_t>(i)].second, direction, begin + room * i / gaps - used);
        begin = BeginOf(places[static_cast<std::size_t>(i)].second, direction);
        used = room * i / gaps;
    }
    SetPlaces(document, L"Verteilen", places);
}

void EqualizeSelection(TDesignDocument& document, TDirection direction) {
    TPlaces places = ChosenPlaces(document);
    if (places.size() < 2) return;
    const TRect leader = places.front().second;
    for (auto& [component, place] : places)
        place = direction == TDirection::Horizontal
                    ? TRect::OfSize(place.Left, place.Top, leader.Width(), place.Height())
                    : TRect::OfSize(place.Left, place.Top, place.Width(), leader.Height());
    SetPlaces(document, L"Gleiche Größe", places);
}

void CenterSelection(TDesignDocument& document, TDirection direction) {
    TPlaces places = ChosenPlaces(document);
    std::erase_if(places, [](const auto& entry) { return !dynamic_cast<TControl*>(entry.first); });
    if (places.empty()) return;
    int first = BeginOf(places.front().second, direction);
    int last = first;
    for (const auto& [component, place] : places) {
        first = std::min(first, BeginOf(place, direction));
        last = std::max(last, BeginOf(place, direction) + LengthOf(place, direction));
    }
    const TWinControl* parent = static_cast<TControl*>(places.front().first)->GetParent();
    const int shift = (LengthOf(parent->GetClientRect(), direction) - (last - first)) / 2 - first;
    for (auto& [component, place] : places)
        MoveBeginTo(place, direction, BeginOf(place, direction) + shift);
    SetPlaces(document, L"Zentrieren", places);
}

void BringSelectionToFront(TDesignDocument& document) {
    document.Edit(L"Nach vorn", [&] {
        for (TComponent* component : document.Selection().Items())
            if (auto* control = dynamic_cast<TControl*>(component)) control->BringToFront();
    });
}

void SendSelectionToBack(TDesignDocument& document) {
    document.Edit(L"Nach hinten", [&] {
        for (TComponent* component : document.Selection().Items())
            if (auto* control = dynamic_cast<TControl*>(component)) control->SendToBack();
    });
}

void SetTabOrder(TDesignDocument& document, std::span<TWinControl* const> controls) {
    document.Edit(L"Tabulatorfolge", [controls] {
        TTabOrder order = 0;
        for (TWinControl* control : controls)
            control->SetTabOrder(order++);
    });
}

}  // namespace designer
