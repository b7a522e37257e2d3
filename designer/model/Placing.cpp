#include "designer/model/Placing.h"

#include <algorithm>
#include <vector>

#include "designer/model/Naming.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/streaming/UnknownComponent.h"

namespace designer {
namespace {

/// True when one of `items` other than itself holds the component.
bool StandsInOneOf(const TComponent& component, const std::vector<TComponent*>& items) {
    for (const TComponent* parent = component.GetParentComponent(); parent;
         parent = parent->GetParentComponent())
        if (std::ranges::find(items, parent) != items.end()) return true;
    return false;
}

void PutControl(TControl& control, TWinControl& parent, const TRect& place) {
    control.SetParent(&parent);
    if (place.IsEmpty())
        control.SetBounds(place.Left, place.Top, control.GetWidth(), control.GetHeight());
    else
        control.SetBoundsRect(place);
}

/// Where the parents of a component of an unknown class stand on the form, all together.
TPoint OriginOf(const TUnknownComponent& unknown) {
    TPoint origin;
    for (const TComponent* parent = unknown.GetParentComponent(); parent != unknown.GetOwner();
         parent = parent->GetParentComponent()) {
        const auto* control = dynamic_cast<const TControl*>(parent);
        if (!control) break;
        origin.X += control->GetLeft();
        origin.Y += control->GetTop();
    }
    return origin;
}

TPoint PlaceInFile(const TUnknownComponent& unknown) {
    TPoint place = OriginOf(unknown);
    place.X += static_cast<int>(unknown.GetNumber(L"Left"));
    place.Y += static_cast<int>(unknown.GetNumber(L"Top"));
    return place;
}

void SetPlaceInFile(TUnknownComponent& unknown, TPoint place) {
    const TPoint origin = OriginOf(unknown);
    unknown.SetNumber(L"Left", place.X - origin.X);
    unknown.SetNumber(L"Top", place.Y - origin.Y);
}

}  // namespace

TWinControl& AcceptingParent(TControl& control) {
    TControl* candidate = &control;
    while (candidate->GetParent() && (!candidate->AsWinControl() || !candidate->IsInState(csDesigning) ||
                                      !candidate->ControlStyle.Contains(csAcceptsControls)))
        candidate = candidate->GetParent();
    return *candidate->AsWinControl();
}

TComponent* Place(TDesignDocument& document, const TMetaClass& classType, TWinControl& parent,
                  const TRect& place) {
    TComponent* component = nullptr;
    document.Edit(L"Einfügen", [&] {
        TDesignRoot& root = document.Root();
        component = classType.Create(&root);
        component->SetName(FreeName(classType.ClassName(), root));
        if (auto* control = dynamic_cast<TControl*>(component))
            PutControl(*control, parent, place);
        else
            SetDesignPlace(*component, place.TopLeft());
    });
    document.Selection().SetOnly(component);
    return component;
}

void DeleteSelection(TDesignDocument& document) {
    const auto chosen = document.Selection().Items();
    std::vector<TComponent*> items(chosen.begin(), chosen.end());
    if (items.empty()) return;
    document.Edit(L"Löschen", [&] {
        std::erase_if(items, [items](const TComponent* item) { return StandsInOneOf(*item, items); });
        for (TComponent* item : items)
            item->Free();
    });
}

void Rename(TDesignDocument& document, TComponent& component, const String& name) {
    document.Edit(L"Umbenennen", [&] {
        if (name.empty()) throw EComponentError(L"'' is not a valid component name");
        component.SetName(name);
    });
}

TPoint DesignPlace(const TComponent& component) {
    if (const auto* unknown = dynamic_cast<const TUnknownComponent*>(&component))
        return PlaceInFile(*unknown);
    const auto info = static_cast<std::uint32_t>(component.GetDesignInfo());
    return {static_cast<std::int16_t>(info & 0xFFFF), static_cast<std::int16_t>(info >> 16)};
}

void SetDesignPlace(TComponent& component, TPoint place) {
    if (auto* unknown = dynamic_cast<TUnknownComponent*>(&component)) return SetPlaceInFile(*unknown, place);
    const auto low = static_cast<std::uint32_t>(place.X) & 0xFFFF;
    component.SetDesignInfo(static_cast<std::int32_t>(low | static_cast<std::uint32_t>(place.Y) << 16));
}

}  // namespace designer
