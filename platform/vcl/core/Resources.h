#pragma once

#include <cstddef>
#include <span>

#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

/// The module (DLL or program) whose code or data contain the address, or null; resources are read from it by
/// name.
[[nodiscard]] HINSTANCE ModuleOfAddress(const void* address);

/// The bytes of a resource; valid as long as the module stays loaded. Raises EResNotFound "Resource <name>
/// not found". `type` is a resource type such as RT_RCDATA.
[[nodiscard]] std::span<const std::byte> FindResourceBytes(HINSTANCE module, const String& name,
                                                           const wchar_t* type);
[[nodiscard]] bool HasResource(HINSTANCE module, const String& name, const wchar_t* type);

/// The text of a string-table entry in the best language for the thread; empty when there is none.
[[nodiscard]] String LoadResString(HINSTANCE module, unsigned id);

}  // namespace vcl
