#pragma once

#include "gallery/GalleryPage.h"

namespace gallery {

// One function per page; each stands in the source file of that name.
[[nodiscard]] TGalleryPage* CreatePalettePage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateCataloguePage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateFramesPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateMasksPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateColumnHeadersPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreatePaintBoxPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateTonesPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateRegionsPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateSkinButtonPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateGlowButtonPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateMessageDialogPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateExplorerBarPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateTabsPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateWhiteTabsPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateToolbarPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateCaptionHeadersPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateOrderFormPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreatePopupFormsPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateGaugesPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateLinkLabelsPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateSplittersPage(TComponent* owner);
[[nodiscard]] TGalleryPage* CreateMenusPage(TComponent* owner);

}  // namespace gallery
