#pragma once

#include <functional>
#include <vector>

#include "platform/vcl/core/Geometry.h"
#include "tests/package/LivingScene.h"

namespace test {

/// What a component was filled with.
struct Furniture {
    std::vector<SceneEvent> Events;     ///< Of one item.
    std::function<vcl::TPoint()> Spot;  ///< Where that item shows on the screen; empty without one.
};

/// Gives a component what a program would: texts, lines, items, groups, a menu's items and a place for it.
/// The item lives as long as the component.
Furniture Furnish(vcl::TComponent& subject, vcl::TCustomForm& form, vcl::TWinControl& place);

/// Takes everything out again: lines, groups, items.
void Empty(vcl::TComponent& subject);

}  // namespace test
