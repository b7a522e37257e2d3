#pragma once

#include "platform/vcl/core/StringList.h"
#include "platform/vcl/menus/ShortCuts.h"

namespace vcl {

/// Short cuts as the texts that the user reads, one a line; texts that name none count as 0.
class TShortCutList : public TStringList {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TShortCut GetShortCut(int index) const { return TextToShortCut(Get(index)); }
    /// The place of the short cut, or -1; scNone has none.
    [[nodiscard]] int IndexOfShortCut(TShortCut shortCut) const;
};

}  // namespace vcl
