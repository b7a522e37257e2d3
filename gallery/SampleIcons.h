#pragma once

#include "gallery/Namespace.h"
#include "platform/vcl/graphics/ImageList.h"

namespace gallery {

/// The pictures that `AddSampleIcons` draws, by their index in a list that was empty before.
enum TSampleIcon { siFolder, siDocument, siPicture, siPrint, siMail, siTrash, siInfo, siSampleIconCount };

/// Adds small pictures in the size of the list, 16 x 16 pixels or more.
void AddSampleIcons(TCustomImageList& icons);

}  // namespace gallery
