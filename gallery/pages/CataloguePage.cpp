#include <algorithm>
#include <array>
#include <vector>

#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/SkinCatalogue.h"
#include "skin/UnitQV7SkinConsts.h"

namespace gallery {
namespace {

/// Bitmaps that are looked at together: those whose names start with one of the prefixes.
struct TFamily {
    const wchar_t* Title;
    std::array<const wchar_t*, 4> Prefixes;
};

constexpr TFamily Families[] = {
    {L"Schaltflächen", {L"SKINBUTTON"}},
    {L"Masken", {L"MASK"}},
    {L"Reiter", {L"TABDEFAULT", L"TABHOVERED", L"TABPRESSED", L"WHITETAB"}},
    {L"Zeichen der Reiter", {L"TABANIMATION", L"TABCLOSE", L"TABLOCK", L"TABUNLOCK"}},
    {L"Werkzeugleiste und Pfeile", {L"TOOL", L"CHEVRON", L"TABDRAG"}},
    {L"Köpfe und Kalender", {L"EXPLORERBAR", L"COLUMNHEADER", L"DATETIMEPICKER"}},
};

bool StartsWith(const String& name, const wchar_t* prefix) { return prefix && name.starts_with(prefix); }

/// Every bitmap of the skin, each pixel as a square, family by family, and the icons of the palette page.
class TCataloguePage : public TGalleryPage {
public:
    using TGalleryPage::TGalleryPage;
    [[nodiscard]] int ShotCount() const override { return static_cast<int>(std::size(Families)) + 1; }
    void PrepareShot(int shot) override { ShowFamily(shot); }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        const TRect client = GetClientRect();
        Fill(canvas, client, clWhite);
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
        const bool onTitle = std::ranges::any_of(FTitleRects, [&](const TRect& r) { return r.Contains({x, y}); });
        SetCursor(onTitle ? crHandPoint : crDefault);
    }

private:
    static constexpr int Margin = 16;
    static constexpr int CellWidth = 91;
    static constexpr int CellHeight = 96;

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
            UseFont(canvas, 8, i == FFamily, i == FFamily ? clBlack : TColor{0x00D78112});
            canvas.GetBrush().SetStyle(bsClear);
            canvas.TextOut(left, 14, title);
            const int width = canvas.TextWidth(title);
            FTitleRects.push_back(TRect::OfSize(left, 10, width, 20));
            left += width + 16;
        }
        Fill(canvas, {Margin, 34, GetClientWidth() - Margin, 35}, 0x00F0EAE7);
    }

    void DrawBitmaps(const TFamily& family) {
        int index = 0;
        for (const TSkinBitmapInfo& info : SkinBitmapCatalogue()) {
            const bool belongs =
                std::ranges::any_of(family.Prefixes, [&](const wchar_t* p) { return StartsWith(info.Name, p); });
            if (belongs) DrawCell(index++, info, 4, 0x00FF00FF);
        }
    }

    void DrawIcons() {
        int index = 0;
        for (const TSkinBitmapInfo& info : PaletteIconCatalogue())
            DrawCell(index++, info, 2, 0x00FF00FF);
    }

    /// One bitmap, enlarged as far as it fits, with name and size.
    void DrawCell(int index, const TSkinBitmapInfo& info, int factor, TColor transparent) {
        constexpr int columns = 8;
        TCanvas& canvas = GetCanvas();
        const int left = Margin + index % columns * CellWidth;
        const int top = 44 + index / columns * CellHeight;
        while (factor > 1 && info.Size.Height * factor > 60)
            --factor;
        TBitmap bitmap;
        bitmap.LoadFromResourceName(QV7SkinModule(), info.Name);
        DrawChecker(canvas, TRect::OfSize(left, top, info.Size.Width * factor, info.Size.Height * factor));
        DrawMagnified(canvas, left, top, bitmap, factor, transparent);
        DrawName(left, top + 61, info);
    }

    /// The name in small letters, on two lines where it is too long for one.
    void DrawName(int left, int top, const TSkinBitmapInfo& info) {
        TCanvas& canvas = GetCanvas();
        UseFont(canvas, 6, false, 0x00404040);
        canvas.GetBrush().SetStyle(bsClear);
        StringView rest = info.Name;
        for (int line = 0; line < 2 && !rest.empty(); ++line) {
            std::size_t length = rest.size();
            while (length > 1 && canvas.TextWidth(rest.substr(0, length)) > CellWidth - 5)
                --length;
            canvas.TextOut(left, top + line * 9, rest.substr(0, length));
            rest.remove_prefix(length);
        }
        UseFont(canvas, 6, false, 0x00909090);
        canvas.TextOut(left, top + 19, Format(L"%d × %d", info.Size.Width, info.Size.Height));
    }

    std::vector<TRect> FTitleRects;
    int FFamily = 0;
};

}  // namespace

TGalleryPage* CreateCataloguePage(TComponent* owner) { return new TCataloguePage(owner); }

}  // namespace gallery
