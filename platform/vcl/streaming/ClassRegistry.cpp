#include "platform/vcl/streaming/ClassRegistry.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Resources.h"

#include <algorithm>
#include <mutex>

namespace vcl {
namespace {

struct TRegistry {
    std::mutex Lock;
    TClassList Classes;
    std::vector<TRegisteredPage> Pages;
};

TRegistry& Registry() {
    static TRegistry registry;
    return registry;
}

const TMetaClass* Find(const TRegistry& registry, StringView name) {
    const auto found = std::ranges::find_if(
        registry.Classes, [&](const TMetaClass* known) { return SameText(known->ClassName(), name); });
    return found == registry.Classes.end() ? nullptr : *found;
}

/// Throws before it changes anything when one of the names is taken.
void Add(TRegistry& registry, std::initializer_list<const TMetaClass*> classes) {
    for (const TMetaClass* added : classes) {
        const TMetaClass* known = Find(registry, added->ClassName());
        if (known && known != added)
            throw EFilerError(Format(L"A class named %s already exists", added->ClassName()));
    }
    for (const TMetaClass* added : classes) {
        if (!Find(registry, added->ClassName())) registry.Classes.push_back(added);
    }
}

TClassList& PageOf(TRegistry& registry, const String& name) {
    const auto found = std::ranges::find_if(
        registry.Pages, [&](const TRegisteredPage& page) { return SameText(page.Name, name); });
    if (found != registry.Pages.end()) return found->Classes;
    return registry.Pages.emplace_back(TRegisteredPage{name, {}}).Classes;
}

template <class Condition>
void Remove(Condition condition) {
    TRegistry& registry = Registry();
    const std::lock_guard hold(registry.Lock);
    std::erase_if(registry.Classes, condition);
    for (TRegisteredPage& page : registry.Pages)
        std::erase_if(page.Classes, condition);
    std::erase_if(registry.Pages, [](const TRegisteredPage& page) { return page.Classes.empty(); });
}

}  // namespace

void RegisterClass(const TMetaClass& classType) {
    RegisterClasses({&classType});
}

void RegisterClasses(std::initializer_list<const TMetaClass*> classes) {
    TRegistry& registry = Registry();
    const std::lock_guard hold(registry.Lock);
    Add(registry, classes);
}

void UnRegisterClass(const TMetaClass& classType) {
    Remove([&](const TMetaClass* known) { return known == &classType; });
}

void UnRegisterModuleClasses(HINSTANCE module) {
    Remove([module](const TMetaClass* known) { return ModuleOfClass(*known) == module; });
}

const TMetaClass* GetClass(StringView name) {
    TRegistry& registry = Registry();
    const std::lock_guard hold(registry.Lock);
    return Find(registry, name);
}

const TMetaClass& FindClass(StringView name) {
    const TMetaClass* found = GetClass(name);
    if (!found) throw EClassNotFound(Format(L"Class %s not found", name));
    return *found;
}

TClassList RegisteredClasses() {
    TRegistry& registry = Registry();
    const std::lock_guard hold(registry.Lock);
    return registry.Classes;
}

void RegisterComponents(const String& page, std::initializer_list<const TMetaClass*> classes) {
    TRegistry& registry = Registry();
    const std::lock_guard hold(registry.Lock);
    Add(registry, classes);
    if (classes.size() == 0) return;
    TClassList& shown = PageOf(registry, page);
    for (const TMetaClass* added : classes) {
        if (std::ranges::find(shown, added) == shown.end()) shown.push_back(added);
    }
}

std::vector<TRegisteredPage> RegisteredPages() {
    TRegistry& registry = Registry();
    const std::lock_guard hold(registry.Lock);
    return registry.Pages;
}

HINSTANCE ModuleOfClass(const TMetaClass& classType) {
    return ModuleOfAddress(&classType);
}

}  // namespace vcl
