#include "explorerbar/items/ItemText.h"

#include <vector>

#include "tests/explorerbar/ItemFixture.h"

namespace qv7skin {
namespace {

using probes::RandomColors;

/// The rules as they are told: a character or a word at a time, each step measured.
class NaiveText {
public:
    explicit NaiveText(TCanvas& canvas) : FCanvas(canvas) {}

    String Ellipsize(String text, int maxWidth) {
        return FCanvas.TextWidth(text) > maxWidth ? Shorten(std::move(text), maxWidth) : text;
    }
    String Split(String& text, int maxWidth) {
        String line;
        for (;;) {
            std::size_t end = 0;
            while (end < text.size() && text[end] != L' ' && text[end] != L'\r')
                ++end;
            const bool ends = end == text.size() || text[end] == L'\r';
            const String word = text.substr(0, ends ? end : end + 1);
            const bool fits = FCanvas.TextWidth(line + word) < maxWidth;
            if (!fits && !line.empty()) return line;
            line = fits ? line + word : Shorten(word, maxWidth - 1);
            text.erase(0, ends ? end + 2 : end + 1);
            if (!fits || ends) return line;
        }
    }

private:
    String Shorten(String text, int maxWidth) {
        do {
            if (!text.empty()) text.pop_back();
        } while (FCanvas.TextWidth(text + L"...") > maxWidth && text.size() >= 2);
        return text + L"...";
    }
    TCanvas& FCanvas;
};

class ItemTextTest : public probes::ItemTest {
protected:
    std::vector<String> Rows(String text, int width) {
        std::vector<String> rows;
        while (!text.empty())
            rows.push_back(SplitLine(Canvas(), text, width));
        return rows;
    }
};

TEST_F(ItemTextTest, ATextThatFitsStaysAsItIs) {
    const String text = L"Dateien";
    EXPECT_EQ(EllipsizeText(Canvas(), text, Wide(text)), text) << "exactly as wide is not too wide";
    EXPECT_EQ(EllipsizeText(Canvas(), L"", 0), L"");
}

TEST_F(ItemTextTest, ATextThatIsTooWideEndsInDots) {
    const String text = L"Dateien und Ordner";
    const int room = Wide(L"Dateien...");
    EXPECT_EQ(EllipsizeText(Canvas(), text, room), L"Dateien...");
    EXPECT_EQ(EllipsizeText(Canvas(), text, room - 1), L"Dateie...");
}

TEST_F(ItemTextTest, OneCharacterIsLeftAtLeast) {
    EXPECT_EQ(EllipsizeText(Canvas(), L"Dateien", 0), L"D...");
    EXPECT_EQ(EllipsizeText(Canvas(), L"Dateien", -50), L"D...");
    EXPECT_EQ(EllipsizeText(Canvas(), L"D", 0), L"...") << "a single character goes";
}

TEST_F(ItemTextTest, RowsTakeWordsWhileTheyAreNarrower) {
    const String first = L"eins zwei ";
    EXPECT_EQ(Rows(L"eins zwei drei", Wide(first) + 1), (std::vector<String>{first, L"drei"}));
    EXPECT_EQ(Rows(L"eins zwei drei", Wide(first)), (std::vector<String>{L"eins ", L"zwei drei"}))
        << "exactly as wide is too wide";
}

TEST_F(ItemTextTest, ASingleWordThatIsTooWideIsCutAndTheNextOnesGoOn) {
    const String word = L"Donaudampfschifffahrt ";
    const int room = Wide(L"Donaudampf...") + 1;
    const std::vector<String> rows = Rows(L"Die " + word + L"ist lang", room);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0], L"Die ");
    EXPECT_EQ(rows[1], L"Donaudampf...");
    EXPECT_EQ(rows[2], L"ist lang");
}

TEST_F(ItemTextTest, ALineBreakBreaksOnce) {
    EXPECT_EQ(Rows(L"eins\r\nzwei", 500), (std::vector<String>{L"eins", L"zwei"}));
    EXPECT_EQ(Rows(L"eins \r\nzwei", 500), (std::vector<String>{L"eins ", L"zwei"}));
    EXPECT_EQ(Rows(L"eins\r\n\r\nzwei", 500), (std::vector<String>{L"eins", L"", L"zwei"}));
    EXPECT_EQ(Rows(L"eins\r\n", 500), (std::vector<String>{L"eins"})) << "nothing follows the last break";
}

TEST_F(ItemTextTest, ACarriageReturnTakesAlongWhatFollowsIt) {
    EXPECT_EQ(Rows(L"eins\rzwei", 500), (std::vector<String>{L"eins", L"wei"}));
    EXPECT_EQ(Rows(L"eins\r", 500), (std::vector<String>{L"eins"}));
}

TEST_F(ItemTextTest, AWordThatIsCutAtABreakTakesTheBreakAlong) {
    const std::vector<String> rows = Rows(L"Donaudampfschiff\r\nfahrt", Wide(L"Donau...") + 1);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], L"Donau...");
    EXPECT_EQ(rows[1], L"fahrt");
}

TEST_F(ItemTextTest, AnEmptyTextIsOneEmptyRow) {
    int rows = 0;
    ForEachRow(Canvas(), L"", 100, [&](const TTextRow& row) {
        ++rows;
        EXPECT_TRUE(row.Text.empty());
        EXPECT_EQ(row.Width, 0);
    });
    EXPECT_EQ(rows, 1);
}

TEST_F(ItemTextTest, RowsKnowTheirWidth) {
    const String text = L"eins zwei Donaudampfschifffahrt drei";
    for (int width = 30; width < 160; width += 7)
        ForEachRow(Canvas(), text, width,
                   [&](const TTextRow& row) { EXPECT_EQ(row.Width, Wide(row.Shown())) << width; });
}

TEST_F(ItemTextTest, TheLineHeightFollowsTheFontOfEachCanvas) {
    TBitmap large(1, 1, pf24bit);
    large.GetCanvas().GetFont().SetHeight(-40);
    const int big = large.GetCanvas().TextHeight(L"A");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(LineHeight(Canvas()), Line());
        EXPECT_EQ(LineHeight(large.GetCanvas()), big);
    }
}

TEST_F(ItemTextTest, QuickRowsAreThoseOfTheRuleToldWordByWord) {
    static constexpr StringView letters = L"ilMW.ÄßJ\r\n   abc";
    RandomColors random(7);
    NaiveText naive(Canvas());
    for (int round = 0; round < 400; ++round) {
        Canvas().GetFont().SetStyle(round % 3 ? TFontStyles{} : TFontStyles{fsBold, fsItalic});
        String text;
        for (unsigned n = random.Next(60); n > 0; --n)
            text += letters[random.Next(static_cast<unsigned>(letters.size()))];
        const int width = static_cast<int>(random.Next(140)) - 5;
        EXPECT_EQ(EllipsizeText(Canvas(), text, width), naive.Ellipsize(text, width)) << width;
        String quick = text;
        String told = text;
        while (!told.empty() && !HasFailure()) {
            EXPECT_EQ(SplitLine(Canvas(), quick, width), naive.Split(told, width)) << width;
            EXPECT_EQ(quick, told);
        }
        if (HasFailure()) FAIL() << "round " << round;
    }
}

TEST_F(ItemTextTest, LinesUnderAndThroughLettersLeaveTheirWidths) {
    TFont& font = Canvas().GetFont();
    const int plain = WidthClass(Canvas());
    font.SetStyle({fsUnderline});
    EXPECT_EQ(WidthClass(Canvas()), plain);
    font.SetStyle({fsStrikeOut, fsUnderline});
    EXPECT_EQ(WidthClass(Canvas()), plain);
    font.SetStyle({fsBold});
    EXPECT_NE(WidthClass(Canvas()), plain);
    font.SetStyle({});
    font.SetSize(font.GetSize() + 4);
    EXPECT_NE(WidthClass(Canvas()), plain);
    EXPECT_NE(WidthClass(Canvas()), 0);
}

TEST_F(ItemTextTest, RowsAreCountedAsTheyAreSplit) {
    static constexpr StringView letters = L"ilMW.ÄßJ\r\n\u0416\u00AD   abc";
    RandomColors random(11);
    for (int round = 0; round < 400; ++round) {
        Canvas().GetFont().SetStyle(round % 3 ? TFontStyles{} : TFontStyles{fsBold, fsItalic});
        String text;
        for (unsigned n = random.Next(40); n > 0; --n)
            text += letters[random.Next(static_cast<unsigned>(letters.size()))];
        const int width = static_cast<int>(random.Next(260)) - 5;
        const auto rows = text.empty() ? 1 : static_cast<int>(Rows(text, width).size());
        EXPECT_EQ(CountRows(Canvas(), text, width), rows) << width;
        EXPECT_TRUE(!IsSurelyNarrower(Canvas(), text, width) || Canvas().TextWidth(text) < width);
    }
    EXPECT_TRUE(IsSurelyNarrower(Canvas(), L"Dateien", 2 * Wide(L"Dateien")));
    EXPECT_FALSE(IsSurelyNarrower(Canvas(), L"zwei\r\nZeilen", 1000)) << "it breaks a line";
}

TEST_F(ItemTextTest, LongTextsAreSplitAsShortOnes) {
    NaiveText naive(Canvas());
    String text;
    for (int i = 0; i < 300; ++i)
        text += i % 40 == 39 ? String(300, L'x') + L" " : L"Wort" + IntToStr(i) + L" ";
    String quick = text;
    String told = text;
    while (!told.empty()) {
        ASSERT_EQ(SplitLine(Canvas(), quick, 2000), naive.Split(told, 2000));
        ASSERT_EQ(quick, told);
    }
}

}  // namespace
}  // namespace qv7skin
