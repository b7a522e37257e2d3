#include <array>

#include "buttons/UnitQV7SkinButton.h"
#include "gallery/ClickCounter.h"
#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr std::array StateNames{L"Normal",         L"Gesperrt", L"Gedrückt",
                                L"Unter der Maus", L"Ein",      L"Ein, unter der Maus"};
constexpr TSize Sizes[] = {{100, 25}, {100, 21}, {84, 40}, {150, 60}};

/// A skin button that also draws its picture of any state.
class TShownButton : public TCustomQV7SkinButton {
public:
    using TCustomQV7SkinButton::TCustomQV7SkinButton;
    /// The state's picture with the caption in the middle.
    void DrawState(TCanvas& canvas, int left, int top, TButtonExState state) {
        TBitmap picture(GetWidth(), GetHeight(), pf24bit);
        BuildImage(state, picture);
        DrawTransparentBitmap(canvas, &picture, left, top, 0x00FF00FF);
        canvas.SetFont(state == bexDisabled ? GetFontDisabled() : GetFont());
        canvas.GetBrush().SetStyle(bsClear);
        TRect caption = TRect::OfSize(left, top, GetWidth(), GetHeight());
        canvas.TextRect(caption, GetCaption(), DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    }
};

/// The image-list skin button: every state at several sizes, and live ones.
class TSkinButtonPage : public TGalleryPage {
public:
    explicit TSkinButtonPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(GetQV7SkinColorBackground());
        FCounter = new TClickCounter(this);
        FCounter->SetTransparent(true);
        FCounter->SetBounds(24, 596, 400, 16);
        FCounter->SetParent(this);
        AddLive(0, L"Speichern");
        AddLive(1, L"&Drucken");
        AddLive(2, L"Gesperrt")->SetEnabled(false);
        AddLive(3, L"Umschalter")->SetButtonStyle(bxsToggle);
        TShownButton* large = AddLive(4, L"Groß");
        large->SetBounds(large->GetLeft(), large->GetTop() - 8, 120, 41);
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        const TRect client = GetClientRect();
        Fill(canvas, client, GetColor());
        DrawTitle(22, L"Alle Zustände");
        int top = 50;
        for (const TSize size : Sizes) {
            DrawStates(top, size);
            top += size.Height + 40;
        }
        DrawMagnifiedStates(390);
        DrawTitle(506, L"Zum Anfassen");
    }

private:
    void DrawTitle(int top, const wchar_t* text) {
        UseFont(GetCanvas(), 9, true, GetQV7SkinColorColumnHeaderBG());
        GetCanvas().GetBrush().SetStyle(bsClear);
        GetCanvas().TextOut(24, top, text);
    }

    void DrawStates(int top, TSize size) {
        constexpr int perRow = 6;
        TShownButton button(nullptr);
        button.SetBounds(0, 0, size.Width, size.Height);
        button.SetCaption(L"Speichern");
        const int columns =
            size.Width > 110 ? 4 : perRow;  // the pictures of the last two states are the pressed one
        for (int state = 0; state < columns; ++state) {
            const int left = 24 + state * (size.Width > 110 ? 172 : 119);
            button.DrawState(GetCanvas(), left, top, static_cast<TButtonExState>(state));
            DrawNote(GetCanvas(), TRect::OfSize(left, top + size.Height + 3, 115, 16),
                     StateNames[static_cast<std::size_t>(state)]);
        }
    }

    /// The left end of each state's picture, so that every pixel can be seen.
    void DrawMagnifiedStates(int top) {
        constexpr int factor = 4;
        for (int state = 0; state < 4; ++state) {
            TShownButton button(nullptr);
            button.SetBounds(0, 0, 40, 25);
            TBitmap picture(40, 25, pf24bit);
            button.DrawState(picture.GetCanvas(), 0, 0, static_cast<TButtonExState>(state));
            TBitmap frame(40, 25, pf24bit);
            Fill(frame.GetCanvas(), {0, 0, 40, 25}, GetColor());
            button.DrawState(frame.GetCanvas(), 0, 0, static_cast<TButtonExState>(state));
            DrawMagnified(GetCanvas(), 24 + state * 172, top, frame, factor, clNone);
        }
    }

    TShownButton* AddLive(int column, const wchar_t* caption) {
        auto* button = new TShownButton(this);
        button->SetBounds(24 + column * 119, 542, 100, 25);
        button->SetCaption(caption);
        button->SetParent(this);
        FCounter->CountClicksOf(*button);
        return button;
    }

    TClickCounter* FCounter;
};

}  // namespace

TGalleryPage* CreateSkinButtonPage(TComponent* owner) {
    return new TSkinButtonPage(owner);
}

}  // namespace gallery
