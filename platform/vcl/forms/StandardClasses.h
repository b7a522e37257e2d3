#pragma once

namespace vcl {

/// Makes the framework's components known by name to readers of form files and shows them on the palette
/// pages "Standard", "Additional", "Win32" and "System". A second call changes nothing.
void RegisterStandardClasses();

}  // namespace vcl
