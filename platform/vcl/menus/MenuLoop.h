#pragma once

#include "platform/vcl/graphics/Handles.h"

namespace vcl {

/// The number of the loop in which the user works a menu now, or would next; no number comes twice. Items
/// note it when their submenu opens, so that all of them are closed when the loop is over.
[[nodiscard]] unsigned PresentMenuLoop();
/// Keeps the system's menu of an item that was freed while its submenu was open until the loop is over: the
/// system still uses it.
void BuryMenuHandle(TMenuHandle handle);
/// Tells that no menu is open any more; destroys what was kept.
void EndMenuLoop();

}  // namespace vcl
