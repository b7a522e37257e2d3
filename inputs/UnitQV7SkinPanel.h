#pragma once

#include "inputs/Namespace.h"
#include "platform/flatstyle/FlatPanel.h"

namespace qv7skin {

/// The skin's panel: light blue-grey without a visible line, painted through a buffer.
class TQV7SkinPanel : public TFlatPanel {
public:
    explicit TQV7SkinPanel(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
