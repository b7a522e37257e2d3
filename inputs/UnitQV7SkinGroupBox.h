#pragma once

#include "inputs/Namespace.h"
#include "platform/flatstyle/FlatGroupBox.h"

namespace qv7skin {

/// The skin's group box.
class TQV7SkinGroupBox : public TFlatGroupBox {
public:
    explicit TQV7SkinGroupBox(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
