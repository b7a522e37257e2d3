#include <algorithm>
#include <array>
#include <vector>

#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/SkinCatalogue.h"
#include "skin/UnitQV7SkinColors.h"
#include "skin/UnitQV7SkinConsts.h"

namespace gallery {
namespace {

/// Bitmaps that are looked at together: those whose names start with one of the prefixes.
struct TFamily {
    const wchar_t* Title;
    std::array<const wchar_t*, 5> Prefixes;
};

constexpr TFamily Families[] = {
    {L"Schaltflächen", {L"SKINBUTTON"}},
    {L"Masken", {L"MASK"}},
    {L"Reiter", {L"TABDEFAULT", L"TABHOVERED", L"TABPRESSED", L"WHITETAB"}},
    {L"Zeichen der Reiter", {L"TABANIMATION", L"TABCLOSE", L"TABLOCK", L"TABUNLOCK", L"TABDRAG"}},
    {L"Werkzeugleiste und Pfeile", {L"TOOL", L"CHEVRON"}},
    {L"Köpfe und Kalender", {L"EXPLORERBAR", L"COLUMNHEADER", L"DATETIMEPICKER"}},
};

bool StartsWith(const String& name, const wchar_t* prefix) {
    return prefix && name.starts_with(prefix);
}

/// Every bitmap of the skin, each pixel as a square, family by family, and the icons of the palette page.
class TCataloguePage : public TGalleryPage {
public:
    using TGalleryPage::TGalleryPage;
    [[nodiscard]] int ShotCount() const override { return static_cast<int>(std::size(Families)) + 1; }
    void PrepareShot(int shot) override { ShowFamily(shot); }

protected:
    void Paint() override {
        DrawTitles();
        if (FFamily < static_cast<int>(std::size(Families)))
            DrawBitmaps(Families[FFamily]);
        else
            DrawIcons();
    }

    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override {
        TGalleryPage::MouseDown(button, shift, x, y);
        for (std::size_t i = 0; i < FTitleRects.size(); ++i)
            if (FTitleRects[i].Contains({x, y})) ShowFamily(static_cast<int>(i));
    }

    void MouseMove(TShiftState shift, int x, int y) override {
        TGalleryPage::MouseMove(shift, x, y);
        const bool onTitle = std::ranges::any_of(FTitleRects, [&](const TRect& r) {
            return r.Contains({x, y});
        });
        SetCursor(onTitle ? crHandPoint : crDefault);
    }

private:
    static constexpr int Margin = 16;
    static constexpr int PieceCellWidth = 91;
    static constexpr int SingleCellWidth = 182;
    static constexpr int RowHeight = 112;
    static constexpr int PictureHeight = 68;

    void ShowFamily(int index) {
        FFamily = index;
        Invalidate();
    }

    /// The families as words to click, the present one in black.
    void DrawTitles() {
        TCanvas& canvas = GetCanvas();
        FTitleRects.clear();
        int left = Margin;
        for (int i = 0; i <= static_cast<int>(std::size(Families)); ++i) {
            const wchar_t* title = i < static_cast<int>(std::size(Families)) ? Families[i].Title : L"Symbole";
            UseFont(canvas, 8, i == FFamily,
                    i == FFamily ? GetQV7SkinColorWindowText() : GetQV7SkinColorLinkText());
            canvas.GetBrush().SetStyle(bsClear);
            canvas.TextOut(left, 14, title);
            const int width = canvas.TextWidth(title);
            FTitleRects.push_back(TRect::OfSize(left, 10, width, 20));
            left += width + 16;
        }
        Fill(canvas, {Margin, 34, GetClientWidth() - Margin, 35}, GetQV7SkinColorBackground());
    }

    /// Pieces of a frame stand in a row of their own under the frame's name, other bitmaps four in a row.
    void DrawBitmaps(const TFamily& family) {
        FTop = 42;
        FColumn = 0;
        String frame;
        for (const TSkinBitmapInfo& info : SkinBitmapCatalogue()) {
            const bool belongs = std::ranges::any_of(
                family.Prefixes, [&](const wchar_t* p) { return StartsWith(info.Name, p); });
            if (!belongs) continue;
            const StringView position = FramePosition(info.Name);
            if (position.empty()) {
                DrawSingle(info, 4);
                continue;
            }
            const String prefix = info.Name.substr(0, info.Name.size() - position.size());
            if (prefix != frame) {
                if (!frame.empty()) FTop += RowHeight;
                frame = prefix;
                FColumn = 0;
                UseFont(GetCanvas(), 8, true);
                GetCanvas().GetBrush().SetStyle(bsClear);
                GetCanvas().TextOut(Margin, FTop, prefix);
            }
            const int left = Margin + FColumn++ * PieceCellWidth;
            DrawPicture(left, FTop + 18, info, 5);
            DrawNote(GetCanvas(), TRect::OfSize(left, FTop + 20 + PictureHeight - 6, PieceCellWidth - 4, 14),
                     position);
        }
    }

    void DrawIcons() {
        FTop = 42;
        FColumn = 0;
        for (const TSkinBitmapInfo& info : PaletteIconCatalogue())
            DrawSingle(info, 2);
    }

    void DrawSingle(const TSkinBitmapInfo& info, int factor) {
        constexpr int columns = 4;
        const int left = Margin + FColumn * SingleCellWidth;
        DrawPicture(left, FTop, info, factor);
        DrawName(left, FTop + PictureHeight + 2, info);
        FColumn = (FColumn + 1) % columns;
        if (FColumn == 0) FTop += RowHeight;
    }

    /// The name, on two lines where it is too long for one, and the size.
    void DrawName(int left, int top, const TSkinBitmapInfo& info) {
        constexpr int width = SingleCellWidth - 8;
        UseFont(GetCanvas(), 8);
        const StringView name = info.Name;
        const std::size_t first = GetCanvas().TextWidth(name) > width ? LastWordStart(name) : name.size();
        for (const StringView line : {name.substr(0, first), name.substr(first)}) {
            if (line.empty()) continue;
            DrawNote(GetCanvas(), TRect::OfSize(left, top, width, 14), line);
            top += 13;
        }
        DrawNote(GetCanvas(), TRect::OfSize(left, top, width, 14),
                 Format(L"%d × %d", info.Size.Width, info.Size.Height));
    }

    /// Where the word for the state starts, or what else stands at the end of a name.
    static std::size_t LastWordStart(StringView name) {
        for (const TSkinState state : {ssDefault, ssHovered, ssPressed, ssDisabled})
            if (const StringView word = SkinStateWord(state); name.ends_with(word))
                return name.size() - word.size();
        return std::min(name.find(L'_'), name.size() / 2);
    }

    /// The word at the end of the name that tells a piece of a frame; empty for other bitmaps.
    static StringView FramePosition(const String& name) {
        for (const TFramePosition position : AllFramePositions)
            if (const StringView word = FramePositionWord(position); name.ends_with(word)) return word;
        return {};
    }

    /// The bitmap, enlarged as far as it fits.
    void DrawPicture(int left, int top, const TSkinBitmapInfo& info, int factor) {
        TCanvas& canvas = GetCanvas();
        while (factor > 1 && info.Size.Height * factor > PictureHeight)
            --factor;
        TBitmap bitmap;
        bitmap.LoadFromResourceName(QV7SkinModule(), info.Name);
        DrawChecker(canvas, TRect::OfSize(left, top, info.Size.Width * factor, info.Size.Height * factor));
        DrawMagnified(canvas, left, top, bitmap, factor, 0x00FF00FF);
    }

    int FTop = 0;     ///< Where the present row starts while painting.
    int FColumn = 0;  ///< The next cell of the present row.
    std::vector<TRect> FTitleRects;
    int FFamily = 0;
};

}  // namespace

TGalleryPage* CreateCataloguePage(TComponent* owner) {
    return new TCataloguePage(owner);
}

}  // namespace gallery
