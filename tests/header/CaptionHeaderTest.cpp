#include "header/UnitQV7SkinHeader.h"

#include <array>

#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/surfaces/Loaders.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace qv7skin {
namespace {

using test::Pixels;
using test::SamePixels;

/// At 19 pixels height both bands have their own size: 9 rows and 10.
constexpr int BandHeight = 19;
constexpr int TopRows = 9;

class CaptionHeader : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Header = Make<TQV7SkinHeader>({20, 30, 220, 30 + BandHeight});
    }
    [[nodiscard]] Pixels Shown() {
        return test::ReadClient(Form().GetHandle())
            .Part({Header->GetLeft(), Header->GetTop(), Header->GetLeft() + Header->GetWidth(),
                   Header->GetTop() + Header->GetHeight()});
    }
    /// The bands row by row, as they stand in the resources.
    [[nodiscard]] Pixels Bands(bool grey) const {
        const String prefix = grey ? L"EXPLORERBARHEADER" : L"COLUMNHEADER";
        const Pixels top = test::ReadBitmap(CreateBmp(prefix + L"TOP")->GetHandle());
        const Pixels bottom = test::ReadBitmap(CreateBmp(prefix + L"BOTTOM")->GetHandle());
        return Pixels(Header->GetWidth(), BandHeight,
                      [&](int, int y) { return y < TopRows ? top.At(0, y) : bottom.At(0, y - TopRows); });
    }
    /// The bands with a caption as the rule has it.
    [[nodiscard]] Pixels WithCaption(const String& caption, int offset, TColor color,
                                     TFontStyles style) const {
        TBitmap bitmap(Header->GetWidth(), BandHeight, pf32bit);
        const Pixels bands = Bands(Header->GetGrey());
        TCanvas& canvas = bitmap.GetCanvas();
        for (int y = 0; y < BandHeight; ++y) {
            canvas.GetBrush().SetColor(bands.At(0, y));
            canvas.FillRect(TRect(0, y, Header->GetWidth(), y + 1));
        }
        canvas.SetFont(Header->GetFont());
        canvas.GetFont().SetColor(color);
        canvas.GetFont().SetStyle(style);
        canvas.GetBrush().SetStyle(bsClear);
        TRect place(offset, 0, Header->GetWidth(), BandHeight);
        canvas.TextRect(place, caption, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        return test::ReadBitmap(bitmap.GetHandle());
    }
    [[nodiscard]] Pixels InSkinFont(const String& caption, int offset = 6) const {
        return WithCaption(caption, offset, GetQV7SkinColorExplorerBarHeaderCaption2(),
                           GetQV7SkinStyleExplorerBarHeaderCaption2());
    }

    TQV7SkinHeader* Header = nullptr;
};

TEST_F(CaptionHeader, IsBornGreyInTheSkinsFont) {
    const TQV7SkinHeader header(nullptr);
    EXPECT_TRUE(header.GetGrey());
    EXPECT_TRUE(header.GetUseSkinFont());
    EXPECT_EQ(header.GetLeftTextOffset(), 6);
    EXPECT_EQ(header.GetWidth(), 50);
    EXPECT_EQ(header.GetHeight(), 20);
    EXPECT_EQ(header.GetFont().GetSize(), 8);
    EXPECT_EQ(header.GetFont().GetColor(), GetQV7SkinColorExplorerBarHeaderCaption());
    EXPECT_EQ(header.GetFont().GetStyle(), GetQV7SkinStyleExplorerBarHeaderCaption());
    EXPECT_EQ(header.AsWinControl(), nullptr);
}

TEST_F(CaptionHeader, ShowsTheGreyBandsOrTheDarkOnes) {
    EXPECT_TRUE(SamePixels(Shown(), Bands(true)));
    Header->SetGrey(false);
    EXPECT_TRUE(SamePixels(Shown(), Bands(false)));
    EXPECT_FALSE(Bands(true) == Bands(false));
}

TEST_F(CaptionHeader, AnOddHeightGivesTheLowerBandTheExtraPixel) {
    Header->SetHeight(21);
    const Pixels shown = Shown();
    const Pixels top = test::ReadBitmap(CreateBmp(L"EXPLORERBARHEADERTOP")->GetHandle());
    const Pixels bottom = test::ReadBitmap(CreateBmp(L"EXPLORERBARHEADERBOTTOM")->GetHandle());
    // Stretched bands begin and end with their own first and last row.
    EXPECT_EQ(shown.At(5, 0), top.At(0, 0));
    EXPECT_EQ(shown.At(5, 9), top.At(0, 8));
    EXPECT_EQ(shown.At(5, 10), bottom.At(0, 0));
    EXPECT_EQ(shown.At(5, 20), bottom.At(0, 9));
}

TEST_F(CaptionHeader, TheCaptionStandsInTheMiddleBehindTheOffset) {
    Header->SetCaption(L"Konten");
    EXPECT_TRUE(SamePixels(Shown(), InSkinFont(L"Konten")));
    Header->SetLeftTextOffset(30);
    EXPECT_TRUE(SamePixels(Shown(), InSkinFont(L"Konten", 30)));
    Header->SetCaption(L"Umsätze");
    EXPECT_TRUE(SamePixels(Shown(), InSkinFont(L"Umsätze", 30)));
}

TEST_F(CaptionHeader, TheTextIsShownAsItIs) {
    Header->SetCaption(L"Soll & Haben");
    EXPECT_TRUE(SamePixels(Shown(), InSkinFont(L"Soll & Haben")));
}

TEST_F(CaptionHeader, ACaptionTooLongEndsInAnEllipsis) {
    const String whole = L"Ein Titel, der viel zu lang ist für diese kurze Leiste";
    std::array<wchar_t, 100> cut{};
    std::copy(whole.begin(), whole.end(), cut.begin());
    TBitmap scratch(1, 1, pf32bit);
    TCanvas& canvas = scratch.GetCanvas();
    canvas.SetFont(Header->GetFont());
    canvas.GetFont().SetStyle(GetQV7SkinStyleExplorerBarHeaderCaption2());
    (void)canvas.TextWidth(whole);  // selects the font
    RECT place{6, 0, Header->GetWidth(), BandHeight};
    canvas.DrawDirectly([&](HDC dc) {
        ::DrawTextW(dc, cut.data(), -1, &place,
                    DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING);
    });
    const String shortened = cut.data();
    ASSERT_TRUE(shortened.ends_with(L"..."));
    ASSERT_LT(shortened.size(), whole.size());
    Header->SetCaption(whole);
    EXPECT_TRUE(SamePixels(Shown(), InSkinFont(shortened)));
}

TEST_F(CaptionHeader, WithoutTheSkinFontTheHostsIsUsedUnchanged) {
    Header->GetFont().SetColor(clMaroon);
    Header->GetFont().SetStyle({fsItalic});
    Header->SetCaption(L"Konten");
    EXPECT_TRUE(SamePixels(Shown(), InSkinFont(L"Konten")));
    Header->SetUseSkinFont(false);
    EXPECT_TRUE(SamePixels(Shown(), WithCaption(L"Konten", 6, clMaroon, {fsItalic})));
    EXPECT_EQ(Header->GetFont().GetColor(), clMaroon);
    EXPECT_EQ(Header->GetFont().GetStyle(), TFontStyles{fsItalic});
}

TEST_F(CaptionHeader, PublishesItsOwnPropertiesOnly) {
    std::vector<String> names;
    for (const auto& property : TQV7SkinHeader::StaticClass().OwnProperties())
        names.push_back(property->Name());
    EXPECT_EQ(names, (std::vector<String>{L"Grey", L"LeftTextOffset", L"Font", L"Caption", L"Align",
                                          L"Anchors", L"UseSkinFont"}));
}

}  // namespace
}  // namespace qv7skin
