#pragma once

#include <map>
#include <memory>
#include <mutex>

namespace vcl {

/// Handles by what they look like: while one is in use, asking for the same looks again yields the same
/// handle; the last user's release frees it. One object per kind of handle serves the process, and is never
/// destroyed, so that handles may outlive everything else.
template <class Key, class Handle>
class TSharedHandles {
public:
    using Shared = std::shared_ptr<const Handle>;

    /// The handle for `key`; `make` provides a new one, or raises.
    template <class Make>
    [[nodiscard]] Shared Get(const Key& key, Make make) {
        const std::lock_guard lock(FMutex);
        std::weak_ptr<const Handle>& entry = FEntries[key];
        if (Shared known = entry.lock()) return known;
        Shared made(new Handle(make()), [this, key](const Handle* handle) { Drop(key, handle); });
        entry = made;
        return made;
    }

private:
    void Drop(const Key& key, const Handle* handle) {
        {
            const std::lock_guard lock(FMutex);
            const auto entry = FEntries.find(key);
            // Another thread may have made a new handle for the key since the last user left.
            if (entry != FEntries.end() && entry->second.expired()) FEntries.erase(entry);
        }
        delete handle;
    }

    std::mutex FMutex;
    std::map<Key, std::weak_ptr<const Handle>> FEntries;
};

}  // namespace vcl
