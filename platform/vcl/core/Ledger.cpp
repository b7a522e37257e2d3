#include "platform/vcl/core/Ledger.h"

#include <mutex>
#include <vector>

#include "platform/vcl/core/Object.h"
#include "platform/vcl/core/PointerSet.h"

namespace vcl {
namespace {

#if VCL_LEDGER

/// Objects and handles of one process. It is never freed: objects with static life end after it would.
struct TBook {
    // Recursive, since naming a class may for the first time build its description, which makes objects.
    std::recursive_mutex Lock;
    TPointerSet<const TObject> Objects;
    // Names are copied: the literal may stand in a library that is unloaded by now.
    std::map<std::string, long, std::less<>> Handles;
};

TBook& Book() {
    static TBook& book = *new TBook;
    return book;
}

#endif

}  // namespace

#if VCL_LEDGER

void TLedger::Count(const char* kind, int change) {
    TBook& book = Book();
    const std::lock_guard hold(book.Lock);
    const auto known = book.Handles.find(std::string_view(kind));
    if (known != book.Handles.end())
        known->second += change;
    else
        book.Handles.emplace(kind, change);
}

void TLedger::AddObject(const TObject* object) {
    TBook& book = Book();
    const std::lock_guard hold(book.Lock);
    book.Objects.Insert(object);
}

void TLedger::RemoveObject(const TObject* object) {
    TBook& book = Book();
    const std::lock_guard hold(book.Lock);
    book.Objects.Erase(object);
}

TLedger::Counts TLedger::Snapshot() {
    TBook& book = Book();
    const std::lock_guard hold(book.Lock);
    Counts counts;
    for (const auto& [kind, count] : book.Handles) {
        if (count != 0) counts[kind] = count;
    }
    // As long as the lock is held, no object gets past the root destructor, so all of these can be asked. One
    // that is being built or destroyed answers with the class that it has at this moment.
    std::vector<const TObject*> living;
    book.Objects.ForEach([&](const TObject* object) { living.push_back(object); });
    for (const TObject* object : living)
        ++counts["object:" + ToUtf8(object->ClassName())];
    return counts;
}

bool TLedger::IsActive() {
    return true;
}

#else

void TLedger::Count(const char*, int) {}
void TLedger::AddObject(const TObject*) {}
void TLedger::RemoveObject(const TObject*) {}
TLedger::Counts TLedger::Snapshot() {
    return {};
}
bool TLedger::IsActive() {
    return false;
}

#endif

TLedger::Counts TLedger::Difference(const Counts& before, const Counts& after) {
    Counts difference = after;
    for (const auto& [name, count] : before)
        difference[name] -= count;
    std::erase_if(difference, [](const auto& entry) { return entry.second == 0; });
    return difference;
}

}  // namespace vcl
