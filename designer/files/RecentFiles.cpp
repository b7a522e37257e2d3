#include "designer/files/RecentFiles.h"

#include <array>

#include "designer/files/SafeFile.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/WindowsApi.h"

namespace designer {
namespace {

/// Names of files mean the same from wherever the next designer is started.
String FullName(const String& name) {
    std::array<wchar_t, 32'768> path{};
    const DWORD length =
        ::GetFullPathNameW(name.c_str(), static_cast<DWORD>(path.size()), path.data(), nullptr);
    return length == 0 || length >= path.size() ? name : String(path.data(), length);
}

void Erase(std::vector<String>& names, const String& name) {
    std::erase_if(names, [&name](const String& other) { return SameText(other, name); });
}

}  // namespace

std::vector<String> TRecentFiles::Names() const {
    std::vector<String> names;
    if (FileTimeOf(FListName) == 0) return names;
    try {
        const String text = FromUtf8(ReadWholeFile(FListName));
        for (std::size_t start = 0; start < text.size() && names.size() < MaxCount;) {
            const std::size_t end = std::min(text.find(L'\n', start), text.size());
            const String name = Trim(StringView(text).substr(start, end - start));
            if (!name.empty()) names.push_back(name);
            start = end + 1;
        }
    } catch (const Exception&) {
        names.clear();
    }
    return names;
}

void TRecentFiles::Add(const String& name) {
    const String full = FullName(name);
    std::vector<String> names = Names();
    if (!names.empty() && names.front() == full) return;
    Erase(names, full);
    names.insert(names.begin(), full);
    if (names.size() > MaxCount) names.resize(MaxCount);
    Write(names);
}

void TRecentFiles::Remove(const String& name) {
    std::vector<String> names = Names();
    Erase(names, FullName(name));
    Write(names);
}

void TRecentFiles::Write(const std::vector<String>& names) const {
    std::string text;
    for (const String& name : names)
        text += ToUtf8(name) + '\n';
    try {
        WriteFileSafely(FListName, text);
    } catch (const Exception&) {
        return;
    }
}

}  // namespace designer
