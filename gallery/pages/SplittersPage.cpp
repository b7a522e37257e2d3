#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "indicators/UnitQV7SkinSplitter.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr int Left = 24;
constexpr int Right = 736;

/// A panel that says how large it is and how small it may become.
class TMeasuringPanel : public TPanel {
public:
    TMeasuringPanel(TComponent* AOwner, const wchar_t* title, bool upright, int least)
        : TPanel(AOwner), FTitle(title), FUpright(upright), FLeast(least) {
        SetBevelOuter(bvNone);
        GetFont().SetName(L"Tahoma");
        GetFont().SetColor(0x00535353);
    }

protected:
    void Resize() override {
        TPanel::Resize();
        const String least = FLeast > 0 ? Format(L" (mindestens %d)", FLeast) : String();
        SetCaption(FTitle + Format(L": %d Pixel", FUpright ? GetWidth() : GetHeight()) + least);
    }

private:
    String FTitle;
    bool FUpright;
    int FLeast;
};

/// Splitters in both directions, with least sizes on both sides.
class TSplittersPage : public TGalleryPage {
public:
    explicit TSplittersPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        AddUpright();
        AddLying();
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        Fill(canvas, GetClientRect(), clWhite);
        DrawHeading(canvas, Left, 16, Right, L"Senkrechte Teiler: die Flächen folgen sofort (rsUpdate)");
        DrawHeading(canvas, Left, 268, Right,
                    L"Waagerechte Teiler: ein Balken zeigt den Weg (rsPattern), Esc bricht ab");
        for (const TPanel* host : {FUpper, FLower}) {
            TRect frame = host->GetBoundsRect();
            frame.Inflate(1, 1);
            Outline(canvas, frame, 0x00C8C8C8);
        }
        DrawNote(canvas, TRect::OfSize(Left, 606, 700, 16),
                 L"Ohne Mindestmaß schnappt eine Fläche unter 30 Pixeln zu; am Rand lässt sie sich wieder "
                 L"aufziehen.");
    }

private:
    TPanel* AddHost(const TRect& bounds) {
        auto* host = new TPanel(this);
        host->SetBevelOuter(bvNone);
        host->SetBoundsRect(bounds);
        host->SetParent(this);
        return host;
    }
    TMeasuringPanel* AddArea(TPanel* host, TAlign align, TSize size, const wchar_t* title, int least,
                             TColor color) {
        const bool upright = host == FUpper;
        auto* area = new TMeasuringPanel(this, title, upright, least);
        const bool outer = align == alRight || align == alBottom;
        area->SetBounds(outer ? 1000 : 0, outer ? 1000 : 0, size.Width, size.Height);
        area->SetAlign(align);
        area->SetColor(color);
        area->SetParent(host);
        return area;
    }
    TQV7SkinSplitter* AddSplitter(TPanel* host, TAlign align, int place) {
        auto* splitter = new TQV7SkinSplitter(this);
        const bool upright = align == alLeft || align == alRight;
        splitter->SetAlign(align);
        splitter->SetBounds(upright ? place : 0, upright ? 0 : place, 6, 6);
        splitter->SetBeveled(true);
        splitter->SetColor(0x00E4E4E4);
        splitter->SetParent(host);
        return splitter;
    }

    void AddUpright() {
        FUpper = AddHost({Left + 1, 50, Right - 1, 240});
        AddArea(FUpper, alLeft, {230, 10}, L"Links", 120, GetQV7SkinColorBackground());
        TQV7SkinSplitter* left = AddSplitter(FUpper, alLeft, 230);
        left->SetResizeStyle(rsUpdate);
        left->GetMinConstraints().SetLeft(120);
        left->GetMinConstraints().SetRight(300);
        AddArea(FUpper, alRight, {150, 10}, L"Rechts", 0, GetQV7SkinColorBackground());
        AddSplitter(FUpper, alRight, 500)->SetResizeStyle(rsUpdate);
        AddArea(FUpper, alClient, {10, 10}, L"Mitte", 0, clWhite);
    }
    void AddLying() {
        FLower = AddHost({Left + 1, 302, Right - 1, 592});
        AddArea(FLower, alTop, {10, 90}, L"Oben", 60, GetQV7SkinColorBackground());
        TQV7SkinSplitter* top = AddSplitter(FLower, alTop, 90);
        top->GetMinConstraints().SetTop(60);
        top->GetMinConstraints().SetBottom(150);
        AddArea(FLower, alBottom, {10, 80}, L"Unten", 50, GetQV7SkinColorBackground());
        AddSplitter(FLower, alBottom, 200)->GetMinConstraints().SetBottom(50);
        AddArea(FLower, alClient, {10, 10}, L"Mitte", 0, clWhite);
    }

    TPanel* FUpper = nullptr;
    TPanel* FLower = nullptr;
};

}  // namespace

TGalleryPage* CreateSplittersPage(TComponent* owner) {
    return new TSplittersPage(owner);
}

}  // namespace gallery
