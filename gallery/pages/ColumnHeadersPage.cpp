#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "skin/UnitQV7SkinClasses.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

struct TFileRow {
    const wchar_t* Name;
    int Kilobytes;
    const wchar_t* Kind;
};

constexpr std::array Columns{L"Name", L"Größe", L"Art"};
constexpr std::array ColumnLefts{0, 300, 430, 712};
constexpr int BandHeights[] = {19, 22, 25, 30, 40};

/// A list whose column headers sort it, and the band at several heights.
class TColumnHeadersPage : public TGalleryPage {
public:
    using TGalleryPage::TGalleryPage;
    [[nodiscard]] int ShotCount() const override { return 2; }
    void PrepareShot(int shot) override { SortBy(shot, shot == 0); }

protected:
    void Paint() override {
        DrawPartHeading(22, L"Liste (Kopf anklicken)");
        for (std::size_t i = 0; i < Columns.size(); ++i)
            DrawColumnHeader(i);
        for (std::size_t i = 0; i < FRows.size(); ++i)
            DrawFileRow(i);
        int top = DrawPartHeading(286, L"Kopfband in mehreren Höhen");
        for (const int height : BandHeights)
            top = DrawBand(top, height) + 12;
    }

    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override {
        TGalleryPage::MouseDown(button, shift, x, y);
        for (std::size_t i = 0; i < Columns.size(); ++i)
            if (HeaderRect(i).Contains({x, y}))
                SortBy(static_cast<int>(i), static_cast<int>(i) == FSortColumn ? !FAscending : true);
    }

private:
    static constexpr int ListTop = 51;
    static constexpr int HeaderHeight = 25;
    static constexpr int RowHeight = 22;

    static TRect HeaderRect(std::size_t column) {
        return {Margin + ColumnLefts[column], ListTop, Margin + ColumnLefts[column + 1],
                ListTop + HeaderHeight};
    }

    void SortBy(int column, bool ascending) {
        FSortColumn = column;
        FAscending = ascending;
        std::ranges::stable_sort(FRows, [&](const TFileRow& a, const TFileRow& b) {
            const int order = column == 0   ? CompareText(a.Name, b.Name)
                              : column == 1 ? a.Kilobytes - b.Kilobytes
                                            : CompareText(a.Kind, b.Kind);
            return ascending ? order < 0 : order > 0;
        });
        Invalidate();
    }

    void DrawCaption(const TRect& header, const wchar_t* text) {
        TCanvas& canvas = GetCanvas();
        UseFont(canvas, 9, GetQV7SkinStyleColumnHeaderCaption().Contains(fsBold),
                GetQV7SkinColorColumnHeaderCaption());
        canvas.GetBrush().SetStyle(bsClear);
        TRect caption{header.Left + 8, header.Top, header.Right - 22, header.Bottom - 1};
        canvas.TextRect(caption, text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }

    void DrawColumnHeader(std::size_t column) {
        const TRect header = HeaderRect(column);
        FBandPainter.Draw(GetCanvas(), header, column + 1 < Columns.size());
        DrawCaption(header, Columns[column]);
        if (static_cast<int>(column) == FSortColumn) DrawGlyph(header, FAscending);
    }

    void DrawGlyph(const TRect& header, bool ascending) {
        const int top = header.Top + (header.Height() - FGlyphPainter.GetHeight()) / 2;
        const TRect place = TRect::OfSize(header.Right - 10 - FGlyphPainter.GetWidth(), top,
                                          FGlyphPainter.GetWidth(), FGlyphPainter.GetHeight());
        FGlyphPainter.Draw(GetCanvas(), place, ascending);
    }

    void DrawFileRow(std::size_t index) {
        TCanvas& canvas = GetCanvas();
        const TFileRow& row = FRows[index];
        const int top = ListTop + HeaderHeight + static_cast<int>(index) * RowHeight;
        if (index % 2 == 1)
            Fill(canvas, {Margin, top, Margin + ColumnLefts.back(), top + RowHeight}, 0x00FAF7F6);
        const String texts[] = {row.Name, IntToStr(row.Kilobytes) + L" KB", row.Kind};
        for (std::size_t i = 0; i < Columns.size(); ++i) {
            UseFont(canvas, 9);
            canvas.GetBrush().SetStyle(bsClear);
            TRect cell{Margin + ColumnLefts[i] + 8, top, Margin + ColumnLefts[i + 1] - 8, top + RowHeight};
            canvas.TextRect(
                cell, texts[i],
                DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | (i == 1 ? DT_RIGHT : 0u));
        }
    }

    int DrawBand(int top, int height) {
        const TRect left{Margin, top, Margin + 300, top + height};
        const TRect right{Margin + 300, top, Margin + 712, top + height};
        FBandPainter.Draw(GetCanvas(), left, true);
        FBandPainter.Draw(GetCanvas(), right, false);
        DrawCaption(left, (L"Höhe " + IntToStr(height)).c_str());
        DrawCaption(right, L"ohne rechte Linie");
        DrawGlyph(left, true);
        DrawGlyph(right, false);
        return top + height;
    }

    TQV7SkinColumnHeaderPainter FBandPainter;
    TQV7SkinColumnHeaderSortGlyphPainter FGlyphPainter;
    std::vector<TFileRow> FRows{
        {L"Angebot Krüger.docx", 84, L"Text"},    {L"Bilanz 2013.xlsx", 412, L"Tabelle"},
        {L"Firmenlogo.bmp", 1033, L"Bild"},       {L"Lieferschein 4711.pdf", 56, L"Dokument"},
        {L"Messe Außenstand.jpg", 2875, L"Bild"}, {L"Notizen.txt", 3, L"Text"},
        {L"Preisliste.xlsx", 128, L"Tabelle"}};
    int FSortColumn = 0;
    bool FAscending = true;
};

}  // namespace

TGalleryPage* CreateColumnHeadersPage(TComponent* owner) {
    return new TColumnHeadersPage(owner);
}

}  // namespace gallery
