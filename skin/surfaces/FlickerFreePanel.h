#pragma once

#include "platform/vcl/stdctrls/Panel.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// A panel that paints through a buffer in memory.
class TFlickerFreePanel : public TPanel {
public:
    explicit TFlickerFreePanel(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
