#pragma once

#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
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
    /// The object half of the event: the object whose method is called, or null for a free callable. It is
    /// the address of the whole object, whichever of its bases the method belongs to.
    [[nodiscard]] const void* ObjectPart() const { return FObject; }
    void Clear() {
        FThunk = nullptr;
        FObject = nullptr;
        FFree.reset();
        std::memset(FBound, 0, sizeof FBound);
    }
    /// For designers, which know a method by its name only: the event remembers the name for form files.
    /// Nothing is bound, so that raising it does nothing. An empty name clears the event.
    void SetMethodName(const std::wstring& name) {
        Clear();
        if (!name.empty()) FFree = std::make_shared<std::wstring>(name);
    }
    /// The name that `SetMethodName` gave, or null.
    [[nodiscard]] const std::wstring* MethodName() const {
        return FThunk ? nullptr : static_cast<const std::wstring*>(FFree.get());
    }
    /// Same object and same method, the same copy of a free callable, or the same name of a method. (The
    /// thunk is left out: each module has its own copy of it.)
    friend bool operator==(const TEventBase& a, const TEventBase& b) {
        if (a.MethodName() && b.MethodName()) return *a.MethodName() == *b.MethodName();
        return a.FObject == b.FObject && a.FFree == b.FFree &&
               std::memcmp(a.FBound, b.FBound, sizeof a.FBound) == 0;
    }

protected:
    using AnyThunk = void (*)();
    /// Room for a pointer to the base that the method belongs to and for the longest pointer to a method.
    static constexpr std::size_t BoundSize = 4 * sizeof(void*);

    TEventBase() = default;
    AnyThunk FThunk = nullptr;
    void* FObject = nullptr;
    alignas(void*) unsigned char FBound[BoundSize] = {};
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
        static_assert(sizeof(TBound<Owner>) <= BoundSize);
        if (!object) return;
        if constexpr (std::is_polymorphic_v<Object>)
            FObject = dynamic_cast<void*>(object);
        else
            FObject = object;
        const TBound<Owner> bound{object, method};
        std::memcpy(FBound, &bound, sizeof bound);
        FThunk = reinterpret_cast<AnyThunk>(&CallMethod<Owner>);
    }

    /// Binds a function, lambda or function object; it is copied to the heap once, here. A null function or
    /// an empty std::function binds nothing.
    template <class Callable>
    requires(std::is_invocable_v<Callable&, Args...> &&
             !std::is_base_of_v<TEventBase, std::decay_t<Callable>>) TEvent(Callable callable) {
        if constexpr (std::is_pointer_v<Callable> || requires { callable.target_type(); }) {
            if (!callable) return;
        }
        FFree = std::make_shared<std::decay_t<Callable>>(std::move(callable));
        FThunk = reinterpret_cast<AnyThunk>(&CallFree<std::decay_t<Callable>>);
    }

    /// Raises the event. It works on a copy, so that a handler may rebind the event or free its owner.
    void operator()(Args... args) const {
        if (!FThunk) return;
        const TEvent copy = *this;
        reinterpret_cast<Thunk>(copy.FThunk)(copy, std::forward<Args>(args)...);
    }

private:
    using Thunk = void (*)(const TEvent&, Args...);

    template <class Owner>
    struct TBound {
        Owner* Object;
        void (Owner::*Method)(Args...);
    };
    template <class Owner>
    static void CallMethod(const TEvent& self, Args... args) {
        TBound<Owner> bound;
        std::memcpy(&bound, self.FBound, sizeof bound);
        (bound.Object->*bound.Method)(std::forward<Args>(args)...);
    }
    template <class Callable>
    static void CallFree(const TEvent& self, Args... args) {
        (*static_cast<Callable*>(self.FFree.get()))(std::forward<Args>(args)...);
    }
};

/// The plain event: tells who raised it.
using TNotifyEvent = TEvent<void(TObject*)>;

}  // namespace vcl
