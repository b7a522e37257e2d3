#pragma once

#include "explorerbar/items/FontFacts.h"
#include "platform/vcl/core/Strings.h"
#include "skin/Namespace.h"

namespace vcl {
class TCanvas;
}

namespace qv7skin {

/// The text, or when it is wider than `MaxWidth` as much of its start as fits together with "..." behind it.
/// One character is left at least.
[[nodiscard]] String EllipsizeText(TCanvas& Canvas, StringView Text, int MaxWidth);

/// Takes the next row of a wrapped text off its start and returns it: the words, each with the blank behind
/// it, that together are narrower than `MaxWidth`. A first word that is too wide is cut and ends in "...". A
/// carriage return ends the row; it is dropped together with the character that follows it.
[[nodiscard]] String SplitLine(TCanvas& Canvas, String& Text, int MaxWidth);

/// A row of a text: a part of it, and whether "..." stands behind that part.
struct TTextRow {
    StringView Text;
    bool Cut = false;
    int Width = 0;  ///< In pixels, dots included.

    void Draw(TCanvas& Canvas, int x, int y) const;
    [[nodiscard]] String Shown() const { return Cut ? String(Text) + L"..." : String(Text); }
};

/// What `EllipsizeText` leaves of a text.
[[nodiscard]] TTextRow CutRow(TCanvas& Canvas, StringView Text, int MaxWidth);
/// What `SplitLine` takes off the start of `Rest`.
[[nodiscard]] TTextRow NextRow(TCanvas& Canvas, StringView& Rest, int MaxWidth);

/// Calls `use` with each row of a text that is wrapped at `MaxWidth`; an empty text is one empty row.
template <class Use>
void ForEachRow(TCanvas& Canvas, StringView Text, int MaxWidth, Use use) {
    do {
        const TTextRow row = NextRow(Canvas, Text, MaxWidth);
        use(row);
    } while (!Text.empty());
}

/// How many rows `ForEachRow` finds.
[[nodiscard]] int CountRows(TCanvas& Canvas, StringView Text, int MaxWidth);

}  // namespace qv7skin
