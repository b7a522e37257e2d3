#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/forms/Form.h"

namespace designer {

/// The form under design: a form in design state that tells what leaves it and what gets another name.
class TDesignRoot final : public TForm {
public:
    TDesignRoot();

    /// A component of the form is being freed; compare the pointer only.
    TEvent<void(TComponent*)> OnRemove;
    /// A component of the form gets another name in place of its present one.
    TEvent<void(const String& present, const String& next)> OnRename;

protected:
    void Notification(TComponent* component, TOperation operation) override;
    /// Refuses what files could not tell apart: names that an object of an unknown class holds, and those of
    /// methods.
    void ValidateRename(TComponent* component, const String& current, const String& next) override;
};

}  // namespace designer
