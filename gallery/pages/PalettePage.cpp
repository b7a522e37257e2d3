#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

struct TColorEntry {
    const wchar_t* Name;
    TColor (*Value)();
    TFontStyles (*Style)();
};

constexpr TColorEntry GeneralColors[] = {
    {L"Background", &GetQV7SkinColorBackground, nullptr},
    {L"Border", &GetQV7SkinColorBorder, nullptr},
    {L"Caption", &GetQV7SkinColorCaption, nullptr},
    {L"WindowText", &GetQV7SkinColorWindowText, nullptr},
    {L"LinkText", &GetQV7SkinColorLinkText, nullptr},
    {L"LinkVisited", &GetQV7SkinColorLinkVisited, nullptr},
};
constexpr TColorEntry PartColors[] = {
    {L"ButtonCaption", &GetQV7SkinColorButtonCaption, &GetQV7SkinStyleButtonCaption},
    {L"ButtonCaptionDisabled", &GetQV7SkinColorButtonCaptionDisabled, &GetQV7SkinStyleButtonCaptionDisabled},
    {L"ColumnHeaderBG", &GetQV7SkinColorColumnHeaderBG, nullptr},
    {L"ColumnHeaderCaption", &GetQV7SkinColorColumnHeaderCaption, &GetQV7SkinStyleColumnHeaderCaption},
    {L"ColumnHeaderSpacer", &GetQV7SkinColorColumnHeaderSpacer, nullptr},
    {L"ExplorerBarHeaderCaption", &GetQV7SkinColorExplorerBarHeaderCaption,
     &GetQV7SkinStyleExplorerBarHeaderCaption},
    {L"ExplorerBarHeaderCaption2", &GetQV7SkinColorExplorerBarHeaderCaption2,
     &GetQV7SkinStyleExplorerBarHeaderCaption2},
};

/// The palette: a swatch, the name of the getter, the value and the style of each entry.
class TPalettePage : public TGalleryPage {
public:
    using TGalleryPage::TGalleryPage;

protected:
    void Paint() override {
        int top = DrawPartHeading(22, L"Allgemein");
        top = DrawEntries(GeneralColors, top);
        top = DrawPartHeading(top + 14, L"Für einzelne Teile");
        DrawEntries(PartColors, top);
    }

private:
    static constexpr int CellWidth = 236;
    static constexpr int CellHeight = 72;

    int DrawEntries(std::span<const TColorEntry> entries, int top) {
        int index = 0;
        for (const TColorEntry& entry : entries) {
            DrawEntry(entry, Margin + index % 3 * CellWidth, top + index / 3 * CellHeight);
            ++index;
        }
        return top + (index + 2) / 3 * CellHeight;
    }

    void DrawEntry(const TColorEntry& entry, int left, int top) {
        TCanvas& canvas = GetCanvas();
        const TRect swatch = TRect::OfSize(left, top, 54, 54);
        Fill(canvas, swatch, entry.Value());
        Outline(canvas, swatch, 0x00C0C0C0);
        const int textLeft = swatch.Right + 10;
        UseFont(canvas, 8, true);
        canvas.GetBrush().SetStyle(bsClear);
        TRect name{textLeft, top + 4, left + CellWidth - 6, top + 20};
        canvas.TextRect(name, entry.Name, DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
        const int right = left + CellWidth - 6;
        DrawNote(canvas, {textLeft, top + 20, right, top + 36}, ColorCode(entry.Value()));
        if (entry.Style)
            DrawNote(canvas, {textLeft, top + 36, right, top + 52},
                     entry.Style().Contains(fsBold) ? L"Schriftstil: fett" : L"Schriftstil: normal");
    }
};

}  // namespace

TGalleryPage* CreatePalettePage(TComponent* owner) {
    return new TPalettePage(owner);
}

}  // namespace gallery
