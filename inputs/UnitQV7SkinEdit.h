#pragma once

#include "inputs/Namespace.h"
#include "platform/tms/CurvyEdit.h"

namespace qv7skin {

/// The skin's line editor: corners of four pixels' radius.
class TCustomQV7SkinEdit : public TCurvyEdit {
public:
    explicit TCustomQV7SkinEdit(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

/// The skin's line editor for forms.
class TQV7SkinEdit : public TCustomQV7SkinEdit {
public:
    using TCustomQV7SkinEdit::TCustomQV7SkinEdit;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
