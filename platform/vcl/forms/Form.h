#pragma once

#include "platform/vcl/forms/CustomForm.h"

namespace vcl {

/// The form that programs derive their windows from.
class TForm : public TCustomForm {
public:
    using TCustomForm::TCustomForm;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
