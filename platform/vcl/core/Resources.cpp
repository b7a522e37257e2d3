#include "platform/vcl/core/Resources.h"

#include "platform/vcl/core/Exceptions.h"

namespace vcl {

HINSTANCE ModuleOfAddress(const void* address) {
    // The system would take null for the program.
    if (!address) return nullptr;
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<const wchar_t*>(address), &module);
    return module;
}

std::span<const std::byte> FindResourceBytes(HINSTANCE module, const String& name, const wchar_t* type) {
    const HRSRC found = FindResourceW(module, name.c_str(), type);
    const HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    const void* bytes = loaded ? LockResource(loaded) : nullptr;
    if (!bytes) throw EResNotFound(Format(L"Resource %s not found", name));
    return {static_cast<const std::byte*>(bytes), SizeofResource(module, found)};
}

bool HasResource(HINSTANCE module, const String& name, const wchar_t* type) {
    return FindResourceW(module, name.c_str(), type) != nullptr;
}

String LoadResString(HINSTANCE module, unsigned id) {
    // The system looks at the low 16 bits only.
    if (id > 0xFFFF) return {};
    // With no room for the text the system hands out the resource itself, so that no length is guessed.
    const wchar_t* text = nullptr;
    const int length = LoadStringW(module, id, reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? String(text, static_cast<std::size_t>(length)) : String();
}

}  // namespace vcl
