#pragma once

#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

/// Sees the messages of the queue before anything else, for as long as it is installed: for controls that
/// take over mouse and keyboard without a loop of their own, such as open menus.
class TMessageFilter {
public:
    virtual ~TMessageFilter();
    TMessageFilter(const TMessageFilter&) = delete;
    TMessageFilter& operator=(const TMessageFilter&) = delete;

    void Install();
    void Remove();
    [[nodiscard]] bool IsInstalled() const;

    /// True: the message was used. The filter may change it instead.
    virtual bool FilterMessage(MSG& message) = 0;

protected:
    TMessageFilter() = default;
};

/// Offers a message to the filters, the one installed last first; true: it was used. For message loops.
[[nodiscard]] bool OfferToMessageFilters(MSG& message);

}  // namespace vcl
