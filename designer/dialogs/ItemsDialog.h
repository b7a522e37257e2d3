#pragma once

#include "designer/inspector/PropertyEditors.h"
#include "designer/model/ItemTree.h"

namespace designer {

/// Lets the user work on the entries of a component: add, delete and move them, type their texts where they
/// stand, and edit the properties and events of the chosen one. Each change is an edit of the document at
/// once; it can be undone in the dialog and afterwards. `values` asks for values that need a window.
void EditItems(TItemTree& tree, TValueDialogs& values);

}  // namespace designer
