#pragma once

#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>

namespace vcl {

class TObject;

/// What all events have in common, whatever their arguments: form files and generic tests handle events
/// through it.
class TEventBase {
public:
    /// True when something is bound.
    [[nodiscard]] bool IsAssigned() const { return FThunk != nullptr; }
    explicit operator bool() const { return IsAssigned(); }
    /// The object half of the event: the object whose method is called, or null for a free callable.
    [[nodiscard]] const void* ObjectPart() const { return FObject; }
    void Clear() {
        FThunk = nullptr;
        FObject = nullptr;
        FFree.reset();
        std::memset(FMethod, 0, sizeof FMethod);
    }
    /// Same object and same method, or the same copy of a free callable.
    friend bool operator==(const TEventBase& a, const TEventBase& b) {
        return a.FThunk == b.FThunk && a.FObject == b.FObject && a.FFree == b.FFree &&
               std::memcmp(a.FMethod, b.FMethod, sizeof a.FMethod) == 0;
    }

protected:
    using AnyThunk = void (*)();
    static constexpr std::size_t MethodSize = 4 * sizeof(void*);

    TEventBase() = default;
    AnyThunk FThunk = nullptr;
    void* FObject = nullptr;
    alignas(void*) unsigned char FMethod[MethodSize] = {};
    std::shared_ptr<void> FFree;
};

template <class Signature>
class TEvent;

/// A callback that the host may leave unset: an object and one of its methods, or a free callable. Raising it
/// calls what is bound and does nothing when nothing is bound; it allocates nothing. The object is not owned
/// and must outlive the binding.
template <class... Args>
class TEvent<void(Args...)> : public TEventBase {
public:
    TEvent() = default;
    TEvent(std::nullptr_t) {}

    /// Binds a method of an object: `Button->OnClick = {this, &TMainForm::ButtonClick};`
    template <class Object, class Owner>
    requires std::is_base_of_v<Owner, Object> TEvent(Object* object, void (Owner::*method)(Args...)) {
        static_assert(sizeof method <= MethodSize);
        if (!object) return;
        FObject = static_cast<Owner*>(object);
        std::memcpy(FMethod, &method, sizeof method);
        FThunk = reinterpret_cast<AnyThunk>(&CallMethod<Owner>);
    }

    /// Binds a lambda or function object; it is copied to the heap once, here.
    template <class Callable>
    requires(std::is_invocable_v<Callable&, Args...> &&
             !std::is_base_of_v<TEventBase, std::decay_t<Callable>>) TEvent(Callable callable) {
        FFree = std::make_shared<std::decay_t<Callable>>(std::move(callable));
        FThunk = reinterpret_cast<AnyThunk>(&CallFree<std::decay_t<Callable>>);
    }

    /// Raises the event. It works on a copy, so that a handler may rebind the event or free its owner.
    void operator()(Args... args) const {
        if (!FThunk) return;
        const TEvent copy = *this;
        reinterpret_cast<Thunk>(copy.FThunk)(copy, static_cast<Args>(args)...);
    }

private:
    using Thunk = void (*)(const TEvent&, Args...);

    template <class Owner>
    static void CallMethod(const TEvent& self, Args... args) {
        void (Owner::*method)(Args...);
        std::memcpy(&method, self.FMethod, sizeof method);
        (static_cast<Owner*>(self.FObject)->*method)(static_cast<Args>(args)...);
    }
    template <class Callable>
    static void CallFree(const TEvent& self, Args... args) {
        (*static_cast<Callable*>(self.FFree.get()))(static_cast<Args>(args)...);
    }
};

/// The plain event: tells who raised it.
using TNotifyEvent = TEvent<void(TObject*)>;

}  // namespace vcl
