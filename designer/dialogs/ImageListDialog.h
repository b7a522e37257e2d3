#pragma once

#include "designer/inspector/PropertyEditors.h"
#include "platform/vcl/graphics/ImageList.h"

namespace designer {

/// Adds the picture of a file to the list and returns the place of the first image that came of it. A PNG is
/// transparent where its alpha is below one half, an icon as it says, other pictures where they have the
/// colour of their lower left pixel. Several images of the list's height side by side become as many images;
/// a picture of another size is drawn in the middle, smaller where it does not fit. Raises what loading
/// raises.
int AddPictureFile(TCustomImageList& images, const String& fileName);

/// Lets the user add, replace, delete and move the images of a list. One edit; none when he changes his mind.
void EditImageList(TDesignDocument& document, TCustomImageList& images, TValueDialogs& values);

}  // namespace designer
