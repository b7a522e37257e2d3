#include <array>

#include "buttons/UnitQV7SkinButton.h"
#include "gallery/ClickCounter.h"
#include "gallery/Drawing.h"
#include "gallery/SamplePicture.h"
#include "gallery/pages/Pages.h"
#include "platform/tms/GlowFace.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr std::array GroupNames{L"Normal", L"Gesperrt", L"Gedrückt", L"Ein", L"Unter der Maus"};
constexpr TSize Sizes[] = {{100, 25}, {100, 21}, {120, 40}, {132, 60}};

/// The button of the palette: every look at several sizes, and live ones.
class TGlowButtonPage : public TGalleryPage {
public:
    explicit TGlowButtonPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        FCounter = new TClickCounter(this);
        FCounter->SetTransparent(true);
        FCounter->SetBounds(24, 596, 400, 16);
        FCounter->SetParent(this);
        AddLive(0, L"OK")->SetDefault(true);
        AddLive(1, L"&Abbrechen")->SetCancel(true);
        AddLive(2, L"Gesperrt")->SetEnabled(false);
        AddLive(3, L"Umschalter")->SetButtonStyle(bxsToggle);
        AddLive(4, L"Gerundet")->SetRounded(true);
        TQV7SkinButton* pictured = AddLive(5, L"Bild");
        TBitmap picture;
        DrawSamplePicture(picture, 20, 16);
        pictured->Picture().Assign(&picture);
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        Fill(canvas, GetClientRect(), GetColor());
        DrawTitle(22, L"Alle Zustände");
        int top = 50;
        for (const TSize size : Sizes) {
            DrawGroups(top, size);
            top += size.Height + 40;
        }
        DrawMagnifiedGroups(390);
        DrawTitle(506, L"Zum Anfassen");
    }

private:
    void DrawTitle(int top, const wchar_t* text) {
        UseFont(GetCanvas(), 9, true, GetQV7SkinColorColumnHeaderBG());
        GetCanvas().GetBrush().SetStyle(bsClear);
        GetCanvas().TextOut(24, top, text);
    }

    void DrawFace(TBitmap& face, TSize size, int group, const wchar_t* text) {
        face.SetPixelFormat(pf32bit);
        face.SetSize(size.Width, size.Height);
        const TQV7SkinButton button(nullptr);
        const auto kind = static_cast<TGlowGroup>(group);
        const TGlowColors& colors = button.GetAppearance().GetColors(kind);
        PaintGlowFace(face.WriteBits(), colors, button.GetRounded(), kind == glowHot);
        TCanvas& canvas = face.GetCanvas();
        canvas.SetFont(button.GetFont());
        if (colors.Text != clDefault) canvas.GetFont().SetColor(colors.Text);
        canvas.GetBrush().SetStyle(bsClear);
        TRect caption{0, 0, size.Width, size.Height};
        canvas.TextRect(caption, text, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    }

    void DrawGroups(int top, TSize size) {
        for (int group = 0; group < GlowGroupCount; ++group) {
            const int left = 24 + group * 143;
            TBitmap face;
            DrawFace(face, size, group, L"Speichern");
            GetCanvas().Draw(left, top, &face);
            DrawNote(GetCanvas(), TRect::OfSize(left, top + size.Height + 3, 115, 16),
                     GroupNames[static_cast<std::size_t>(group)]);
        }
    }

    void DrawMagnifiedGroups(int top) {
        for (int group = 0; group < GlowGroupCount; ++group) {
            TBitmap face;
            DrawFace(face, {32, 25}, group, L"");
            DrawMagnified(GetCanvas(), 24 + group * 143, top, face, 4, clNone);
        }
    }

    TQV7SkinButton* AddLive(int column, const wchar_t* caption) {
        auto* button = new TQV7SkinButton(this);
        button->SetBounds(24 + column * 119, 542, 100, 25);
        button->SetCaption(caption);
        button->SetParent(this);
        FCounter->CountClicksOf(*button);
        return button;
    }

    TClickCounter* FCounter;
};

}  // namespace

TGalleryPage* CreateGlowButtonPage(TComponent* owner) {
    return new TGlowButtonPage(owner);
}

}  // namespace gallery
