#pragma once

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Persistent.h"

namespace vcl {

/// A drawing tool (font, pen, brush): a value with a change event and a handle made on demand.
class TGraphicsObject : public TPersistent {
public:
    /// Raised after each change of a property.
    TNotifyEvent OnChange;

protected:
    /// Tells that a property changed.
    virtual void Changed() { OnChange(this); }
};

}  // namespace vcl
