#pragma once

#include <map>

#include "designer/Namespace.h"
#include "platform/vcl/streaming/FormDocument.h"

namespace designer {

struct TLessText {
    bool operator()(const String& a, const String& b) const { return CompareText(a, b) < 0; }
};
/// New names of components by their former ones.
using TNewNames = std::map<String, String, TLessText>;

/// Lets the references in a value follow, which name components ("Edit1") or what those hold ("Frame1.Edit").
/// In parts of form files whose class nobody knows every word may be one.
void FollowNames(TFormValue& value, const TNewNames& names);

/// The same in all properties of an object and of those within it. What a known class says to be something
/// else stays.
void FollowNames(TFormObject& object, const TNewNames& names);

/// True for a value that names the component, or something in it.
[[nodiscard]] bool RefersTo(const TFormValue& value, StringView component);

}  // namespace designer
