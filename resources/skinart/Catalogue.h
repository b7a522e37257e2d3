#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "resources/skinart/Frame.h"
#include "resources/skinart/Picture.h"

namespace skinart {

/// A bitmap and its resource name.
struct NamedPicture {
    std::string Name;
    Picture Image;
};

/// The bitmaps of one resource script, in its order.
class Catalogue {
public:
    /// Adds a bitmap; throws std::logic_error when the name is taken.
    void Add(std::string name, Picture image);

    /// Adds the eight pieces of a frame under `prefix` and their position words.
    void AddFrame(const std::string& prefix, const FramePieces& pieces);

    /// The bitmap called `name`; throws std::out_of_range when there is none.
    const Picture& Find(std::string_view name) const;

    /// The eight pieces that were added under `prefix`.
    FramePieces FindFrame(const std::string& prefix) const;

    const std::vector<NamedPicture>& Pictures() const { return FPictures; }

private:
    std::vector<NamedPicture> FPictures;
};

/// All bitmaps that the controls draw: 24 bits per pixel, magenta transparent.
Catalogue DrawSkin();

/// The icons of the designer's palette: 24 x 24 pixels in the VGA colours.
Catalogue DrawIcons();

// The families that make up the skin, one file each.
void AddButtons(Catalogue& skin);
void AddMasks(Catalogue& skin);
void AddTabs(Catalogue& skin);
void AddTabSigns(Catalogue& skin);
void AddToolbar(Catalogue& skin);
void AddHeaderBands(Catalogue& skin);
void AddHeaderButtons(Catalogue& skin);
void AddCalendarButton(Catalogue& skin);

}  // namespace skinart
