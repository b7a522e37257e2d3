#pragma once

#include "skin/surfaces/FlickerFreePaintBox.h"

namespace qv7skin {

/// What header controls show at their right edge when the items do not fit.
class TQV7SkinHeaderChevronBase : public TFlickerFreePaintBox {
public:
    using TFlickerFreePaintBox::TFlickerFreePaintBox;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
