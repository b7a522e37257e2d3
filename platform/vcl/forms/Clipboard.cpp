#include "platform/vcl/forms/Clipboard.h"

#include <cstring>
#include <memory>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Application.h"

namespace vcl {
namespace {

/// The clipboard, open for this program to the end of the scope.
class TOpenClipboard {
public:
    TOpenClipboard() {
        // Without a window the system takes nothing.
        if (!::OpenClipboard(Application().GetHandle())) throw EInvalidOperation(L"Cannot open clipboard");
    }
    ~TOpenClipboard() { ::CloseClipboard(); }
    TOpenClipboard(const TOpenClipboard&) = delete;
    TOpenClipboard& operator=(const TOpenClipboard&) = delete;
};

/// Movable memory, as the clipboard wants it.
using TGlobalMemory = std::unique_ptr<void, decltype(&::GlobalFree)>;

TGlobalMemory GlobalCopyOf(const String& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    TGlobalMemory memory(::GlobalAlloc(GMEM_MOVEABLE, bytes), &::GlobalFree);
    void* place = memory ? ::GlobalLock(memory.get()) : nullptr;
    if (!place) throw EOutOfResources(L"Out of system resources");
    std::memcpy(place, text.c_str(), bytes);
    ::GlobalUnlock(memory.get());
    return memory;
}

}  // namespace

String TClipboard::GetAsText() const {
    const TOpenClipboard open;
    const HANDLE memory = ::GetClipboardData(CF_UNICODETEXT);
    const auto* text = memory ? static_cast<const wchar_t*>(::GlobalLock(memory)) : nullptr;
    if (!text) return {};
    // Other programs may have forgotten the end.
    const std::size_t room = ::GlobalSize(memory) / sizeof(wchar_t);
    String result(text, ::wcsnlen(text, room));
    ::GlobalUnlock(memory);
    return result;
}

void TClipboard::SetAsText(const String& value) {
    TGlobalMemory memory = GlobalCopyOf(value);
    const TOpenClipboard open;
    ::EmptyClipboard();
    if (!::SetClipboardData(CF_UNICODETEXT, memory.get())) throw EOutOfResources(L"Out of system resources");
    // It is the system's from here on.
    (void)memory.release();
}

bool TClipboard::HasFormat(UINT format) const {
    return ::IsClipboardFormatAvailable(format) != FALSE;
}

void TClipboard::Clear() {
    const TOpenClipboard open;
    ::EmptyClipboard();
}

TClipboard& Clipboard() {
    static TClipboard clipboard;
    return clipboard;
}

}  // namespace vcl
