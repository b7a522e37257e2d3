#include "designer/dialogs/ComponentEditors.h"

#include "designer/dialogs/ImageListDialog.h"
#include "designer/dialogs/ItemsDialog.h"
#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/Menu.h"

namespace designer {
namespace {

bool IsMenu(const TComponent& component) {
    return dynamic_cast<const TMenu*>(&component);
}
bool IsActionList(const TComponent& component) {
    return dynamic_cast<const TCustomActionList*>(&component);
}

}  // namespace

bool HasComponentEditor(const TComponent& component) {
    return IsMenu(component) || IsActionList(component) || dynamic_cast<const TCustomImageList*>(&component);
}

void EditComponent(TDesignDocument& document, TComponent& component, TValueDialogs& values) {
    if (IsMenu(component))
        EditItems(*MakeMenuTree(document, component.GetName()), values);
    else if (IsActionList(component))
        EditItems(*MakeActionTree(document, component.GetName()), values);
    else if (auto* images = dynamic_cast<TCustomImageList*>(&component))
        EditImageList(document, *images, values);
}

}  // namespace designer
