#include "designer/model/DesignRoot.h"

namespace designer {

TDesignRoot::TDesignRoot() : TForm(nullptr) {
    SetDesigning(true);
}

void TDesignRoot::Notification(TComponent* component, TOperation operation) {
    TForm::Notification(component, operation);
    if (operation == opRemove) OnRemove(component);
}

}  // namespace designer
