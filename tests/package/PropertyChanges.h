#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/vcl/core/Component.h"

namespace test {

/// A way to change one published property, or one of an object or collection in it.
struct PropertyChange {
    std::string Path;  ///< "Font.Style", for messages.
    /// Does it. What the setter refuses it raises.
    std::function<void(vcl::TPersistent& object)> Apply;
};

/// Several changes of every property that the class of the component publishes: other values of its kind,
/// other components of `owner`'s, methods by name.
std::vector<PropertyChange> ChangesOf(vcl::TPersistent& object, vcl::TComponent& owner);

/// The rows of the object and of the objects in it that hold plain values, with the values: "Font.Size = 8".
/// Leaves out what form files would not store.
std::vector<std::string> StoredValues(vcl::TPersistent& object);

}  // namespace test
