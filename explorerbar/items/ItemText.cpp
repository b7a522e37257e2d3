#include "explorerbar/items/ItemText.h"

#include <algorithm>
#include <vector>

#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin {
namespace {

constexpr StringView Dots = L"...";
/// Longer texts than this are measured piece by piece: a row holds less.
constexpr std::size_t PieceLength = 256;

/// How wide the first characters of a text are, as far as they are at most `limit` wide. The canvas' font
/// must be selected, as it is after measuring with the canvas.
class TPrefixWidths {
public:
    TPrefixWidths(TCanvas& canvas, StringView text, int limit) {
        if (limit < 0 || text.empty()) return;
        FWidths.resize(text.size());
        SIZE size{};
        int count = 0;
        ::GetTextExtentExPointW(canvas.GetHandle(), text.data(), static_cast<int>(text.size()), limit, &count,
                                FWidths.data(), &size);
        FWidths.resize(static_cast<std::size_t>(std::max(count, 0)));
    }
    [[nodiscard]] std::size_t Count() const { return FWidths.size(); }
    /// The width of the first `length` characters.
    [[nodiscard]] int Of(std::size_t length) const { return length ? FWidths[length - 1] : 0; }

private:
    std::vector<int> FWidths;
};

/// Shortens a text that is too wide until it is at most `limit` wide with the dots, or one character is left.
/// The number of characters is guessed from the widths of the prefixes and then set right by measuring, since
/// a font may draw the dots closer to some characters than to others.
TTextRow CutTo(TCanvas& canvas, StringView text, int limit) {
    const std::size_t longest = text.empty() ? 0 : text.size() - 1;
    String shown;
    const auto widthWithDots = [&](std::size_t length) {
        shown.assign(text.substr(0, length)).append(Dots);
        return canvas.TextWidth(shown);
    };
    const int dots = canvas.TextWidth(Dots);
    const TPrefixWidths widths(canvas, text, limit - dots);
    std::size_t length = std::clamp<std::size_t>(widths.Count(), std::min<std::size_t>(longest, 1), longest);
    int width = widthWithDots(length);
    while (length > 1 && width > limit)
        width = widthWithDots(--length);
    while (length < longest) {
        const int wider = widthWithDots(length + 1);
        if (wider > limit) break;
        width = wider;
        ++length;
    }
    return {text.substr(0, length), true, width};
}

/// The start of a text that decides about a row of that width, without measuring all of a long text.
struct TPiece {
    StringView Text;
    int Width = 0;
};
TPiece DecidingPiece(TCanvas& canvas, StringView text, int maxWidth) {
    std::size_t length = PieceLength;
    for (;; length *= 2) {
        const StringView piece = text.substr(0, length);
        const int width = canvas.TextWidth(piece);
        if (piece.size() == text.size() || width >= maxWidth) return {piece, width};
    }
}

}  // namespace

void TTextRow::Draw(TCanvas& Canvas, int x, int y) const {
    if (Cut)
        Canvas.TextOut(x, y, Shown());
    else
        Canvas.TextOut(x, y, Text);
}

TTextRow CutRow(TCanvas& Canvas, StringView Text, int MaxWidth) {
    const int width = Canvas.TextWidth(Text);
    return width > MaxWidth ? CutTo(Canvas, Text, MaxWidth) : TTextRow{Text, false, width};
}

TTextRow NextRow(TCanvas& Canvas, StringView& Rest, int MaxWidth) {
    const std::size_t lineEnd = std::min(Rest.find(L'\r'), Rest.size());
    const StringView line = Rest.substr(0, lineEnd);
    const auto take = [&](std::size_t count) {
        // The carriage return goes with what ends at it, and takes the character behind it along.
        Rest.remove_prefix(std::min(count == lineEnd ? lineEnd + 2 : count, Rest.size()));
    };
    const TPiece piece = DecidingPiece(Canvas, line, MaxWidth);
    if (piece.Width < MaxWidth) {
        take(lineEnd);
        return {line, false, piece.Width};
    }
    const TPrefixWidths widths(Canvas, piece.Text, MaxWidth - 1);
    const std::size_t lastBlank = line.substr(0, widths.Count()).rfind(L' ');
    if (lastBlank != StringView::npos) {
        const std::size_t count = lastBlank + 1;
        Rest.remove_prefix(count);
        return {line.substr(0, count), false, widths.Of(count)};
    }
    const std::size_t blank = line.find(L' ');
    const bool wordEndsAtBlank = blank != StringView::npos;
    const StringView word = wordEndsAtBlank ? line.substr(0, blank + 1) : line;
    if (wordEndsAtBlank)
        Rest.remove_prefix(word.size());
    else
        take(lineEnd);
    return CutTo(Canvas, word, MaxWidth - 1);
}

int CountRows(TCanvas& Canvas, StringView Text, int MaxWidth) {
    if (IsSurelyNarrower(Canvas, Text, MaxWidth)) return 1;
    int rows = 0;
    ForEachRow(Canvas, Text, MaxWidth, [&](const TTextRow&) { ++rows; });
    return rows;
}

String EllipsizeText(TCanvas& Canvas, StringView Text, int MaxWidth) {
    return CutRow(Canvas, Text, MaxWidth).Shown();
}

String SplitLine(TCanvas& Canvas, String& Text, int MaxWidth) {
    StringView rest = Text;
    const String row = NextRow(Canvas, rest, MaxWidth).Shown();
    Text.erase(0, Text.size() - rest.size());
    return row;
}

}  // namespace qv7skin
