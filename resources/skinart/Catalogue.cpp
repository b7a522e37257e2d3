#include "resources/skinart/Catalogue.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace skinart {

void Catalogue::Add(std::string name, Picture image) {
    const bool taken =
        std::ranges::any_of(FPictures, [&](const NamedPicture& picture) { return picture.Name == name; });
    if (taken) throw std::logic_error("two bitmaps called " + name);
    FPictures.push_back({std::move(name), std::move(image)});
}

void Catalogue::AddFrame(const std::string& prefix, const FramePieces& pieces) {
    for (const auto& [position, piece] : Named(pieces))
        Add(prefix + position, *piece);
}

const Picture& Catalogue::Find(std::string_view name) const {
    const auto found = std::ranges::find(FPictures, name, &NamedPicture::Name);
    if (found == FPictures.end()) throw std::out_of_range("no bitmap called " + std::string(name));
    return found->Image;
}

FramePieces Catalogue::FindFrame(const std::string& prefix) const {
    return {Find(prefix + "TOPLEFT"),    Find(prefix + "TOPCENTER"),    Find(prefix + "TOPRIGHT"),
            Find(prefix + "BOTTOMLEFT"), Find(prefix + "BOTTOMCENTER"), Find(prefix + "BOTTOMRIGHT"),
            Find(prefix + "LEFTCENTER"), Find(prefix + "RIGHTCENTER")};
}

Catalogue DrawSkin() {
    Catalogue skin;
    AddButtons(skin);
    AddMasks(skin);
    AddTabs(skin);
    AddTabSigns(skin);
    AddToolbar(skin);
    AddHeaderBands(skin);
    AddHeaderButtons(skin);
    AddCalendarButton(skin);
    return skin;
}

}  // namespace skinart
