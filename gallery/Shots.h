#pragma once

#include "gallery/MainForm.h"

namespace gallery {

/// Opens every page in turn and writes a picture of the whole window for each of its states, as "name.png" or
/// "name-1.png", "name-2.png" ... into the folder, which is made if need be. Writes the files' names to the
/// standard output. Raises EFCreateError for a folder that can't be written.
void WriteShots(TMainForm& form, const String& folder);

}  // namespace gallery
