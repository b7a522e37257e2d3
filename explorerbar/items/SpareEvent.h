#pragma once

#include <memory>
#include <utility>

#include "platform/vcl/core/Events.h"
#include "skin/Namespace.h"

namespace qv7skin {

template <class Signature>
class TSpareEvent;

/// An event that few of many objects use: it is bound and raised as a `TEvent` is, but takes the room of a
/// pointer until something is bound to it.
template <class... Args>
class TSpareEvent<void(Args...)> {
public:
    using TBound = TEvent<void(Args...)>;

    TSpareEvent() = default;
    TSpareEvent(const TSpareEvent&) = delete;
    TSpareEvent& operator=(const TSpareEvent&) = delete;

    TSpareEvent& operator=(TBound event) {
        FEvent = event ? std::make_unique<TBound>(std::move(event)) : nullptr;
        return *this;
    }
    [[nodiscard]] bool IsAssigned() const { return FEvent != nullptr; }
    explicit operator bool() const { return IsAssigned(); }
    /// What is bound; an empty event when nothing is.
    [[nodiscard]] TBound Get() const { return FEvent ? *FEvent : TBound(); }
    void operator()(Args... args) const {
        if (FEvent) (*FEvent)(std::forward<Args>(args)...);
    }

private:
    std::unique_ptr<TBound> FEvent;
};

}  // namespace qv7skin
