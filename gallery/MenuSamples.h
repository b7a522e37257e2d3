#pragma once

#include <memory>

#include "gallery/Namespace.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/stdctrls/Memo.h"

namespace gallery {

/// Fills a main menu with what a text editor offers; the items work the editor, which outlives the menu.
/// Submenus bring themselves up to date when they open.
void FillEditorMenu(TMenuItem& menu, TMemo& editor);

/// Fills a menu with one of everything: headings, descriptions, ticks and dots, pictures, disabled items,
/// four levels. `onClick` is raised by all items that can be chosen.
void FillSampleMenu(TMenuItem& menu, const TNotifyEvent& onClick);

/// The pictures of both menus, by the index that their items name.
[[nodiscard]] std::unique_ptr<TImageList> CreateMenuImages();

}  // namespace gallery
