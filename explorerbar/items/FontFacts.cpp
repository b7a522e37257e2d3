#include "explorerbar/items/FontFacts.h"

#include <array>
#include <cstring>
#include <memory>

#include "platform/vcl/graphics/Canvas.h"

namespace qv7skin {
namespace {

constexpr wchar_t FirstPlain = L' ';
constexpr wchar_t LastPlain = 0xFF;
constexpr int Unknown = -1;

/// Letters of Latin scripts, which stand side by side in their own widths whatever their neighbours are.
bool IsPlain(wchar_t c) {
    constexpr wchar_t SoftHyphen = 0xAD;
    return c >= FirstPlain && c <= LastPlain && (c < 0x7F || c > 0x9F) && c != SoftHyphen;
}

/// What was found out about a font.
struct TFontFacts {
    std::weak_ptr<const TFontHandle> Font;  ///< Watched, not kept alive.
    LOGFONTW Looks{};                       ///< Without lines.
    int LineHeight = 0;
    int WidthClass = 0;
    int Slack = Unknown;  ///< What the last letter may reach beyond its width.
    std::array<int, LastPlain - FirstPlain + 1> Widths{};

    [[nodiscard]] bool AreOf(const TSharedFont& font) const {
        return !Font.owner_before(font) && !font.owner_before(Font);
    }
    void FindOut(TCanvas& canvas) {
        Font = canvas.GetFont().GetShared();
        Looks = canvas.GetFont().GetLogFont();
        Looks.lfUnderline = Looks.lfStrikeOut = 0;
        LineHeight = canvas.TextHeight(L"A");
        Slack = Unknown;
    }
    void NeedWidths(TCanvas& canvas) {
        if (Slack != Unknown) return;
        const TEXTMETRICW metrics = canvas.TextMetrics();
        Slack = metrics.tmMaxCharWidth + metrics.tmOverhang;
        Widths.fill(Unknown);
    }
    [[nodiscard]] int WidthOf(TCanvas& canvas, wchar_t c) {
        int& width = Widths[static_cast<std::size_t>(c - FirstPlain)];
        if (width == Unknown) width = canvas.TextWidth({&c, 1});
        return width;
    }
};

/// The facts about the canvas' font. Those of the last few fonts are known: items under the mouse, ticked
/// boxes and others alternate.
TFontFacts& FactsFor(TCanvas& canvas) {
    static std::array<TFontFacts, 4> known;
    static std::size_t oldest = 0;
    const TSharedFont& font = canvas.GetFont().GetShared();
    for (TFontFacts& facts : known)
        if (facts.AreOf(font)) return facts;
    TFontFacts& facts = known[oldest++ % known.size()];
    facts.FindOut(canvas);
    static int classes = 0;
    facts.WidthClass = 0;
    for (const TFontFacts& other : known)
        if (&other != &facts && std::memcmp(&other.Looks, &facts.Looks, sizeof facts.Looks) == 0)
            facts.WidthClass = other.WidthClass;
    if (facts.WidthClass == 0) facts.WidthClass = ++classes;
    return facts;
}

}  // namespace

int LineHeight(TCanvas& Canvas) {
    return FactsFor(Canvas).LineHeight;
}

int WidthClass(TCanvas& Canvas) {
    return FactsFor(Canvas).WidthClass;
}

bool IsSurelyNarrower(TCanvas& Canvas, StringView Text, int MaxWidth) {
    TFontFacts& facts = FactsFor(Canvas);
    facts.NeedWidths(Canvas);
    int width = facts.Slack;
    for (const wchar_t c : Text) {
        if (!IsPlain(c)) return false;
        width += facts.WidthOf(Canvas, c);
        if (width >= MaxWidth) return false;
    }
    return width < MaxWidth;
}

}  // namespace qv7skin
