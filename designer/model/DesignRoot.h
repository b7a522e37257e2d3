#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/forms/Form.h"

namespace designer {

/// The form under design: a form in design state that tells what leaves it.
class TDesignRoot final : public TForm {
public:
    TDesignRoot();

    /// A component of the form is being freed; compare the pointer only.
    TEvent<void(TComponent*)> OnRemove;

protected:
    void Notification(TComponent* component, TOperation operation) override;
};

}  // namespace designer
