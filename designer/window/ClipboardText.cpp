#include "designer/window/ClipboardText.h"

#include <cstring>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/WindowsApi.h"

namespace designer {
namespace {

/// The clipboard, open for this program.
class TOpenClipboard {
public:
    TOpenClipboard() {
        if (!::OpenClipboard(nullptr)) throw EInvalidOperation(L"Cannot open clipboard");
    }
    ~TOpenClipboard() { ::CloseClipboard(); }
    TOpenClipboard(const TOpenClipboard&) = delete;
    TOpenClipboard& operator=(const TOpenClipboard&) = delete;
};

}  // namespace

void SetClipboardText(const String& text) {
    const TOpenClipboard clipboard;
    ::EmptyClipboard();
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory) throw EOutOfResources(L"Out of system resources");
    std::memcpy(::GlobalLock(memory), text.c_str(), bytes);
    ::GlobalUnlock(memory);
    // From here on the system owns it.
    if (!::SetClipboardData(CF_UNICODETEXT, memory)) ::GlobalFree(memory);
}

String GetClipboardText() {
    const TOpenClipboard clipboard;
    const HANDLE memory = ::GetClipboardData(CF_UNICODETEXT);
    if (!memory) return {};
    const auto* text = static_cast<const wchar_t*>(::GlobalLock(memory));
    String result = text ? text : L"";
    ::GlobalUnlock(memory);
    return result;
}

}  // namespace designer
