#pragma once

#include <optional>
#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/streaming/FormDocument.h"

namespace designer {

/// What has to be done to the components of one form file so that they become those of another.
struct TFormPatch {
    /// A property that the other file leaves out.
    struct TReset {
        String Component;  ///< Empty for the form itself.
        String Property;   ///< "Font.Style"
    };
    /// The children of a component in their new order.
    struct TOrder {
        String Parent;  ///< Empty for the form itself.
        std::vector<String> Children;
    };

    std::vector<String> Removed;  ///< Components that go, with all that stands in them.
    std::vector<TReset> Resets;
    TFormObject Changes;  ///< Components that stay as `inherited` objects with what changes, new ones whole.
    std::vector<TOrder> Orders;

    /// None when only reading the other file anew will do.
    [[nodiscard]] static std::optional<TFormPatch> Between(const TFormDocument& from,
                                                           const TFormDocument& to);
};

}  // namespace designer
