#include <array>

#include "buttons/UnitQV7SkinButton.h"
#include "gallery/ClickCounter.h"
#include "gallery/Drawing.h"
#include "gallery/SamplePicture.h"
#include "gallery/pages/Pages.h"
#include "platform/tms/GlowFace.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
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
        RegisterClass(TClickCounter::StaticClass());
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
        // What the button does not publish.
        FRoundedButton->SetRounded(true);
        TBitmap picture;
        DrawSamplePicture(picture, 20, 16);
        FPictureButton->Picture().Assign(&picture);
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TGlowButtonPage>(L"TGlowButtonPage", TGalleryPage::StaticClass())
                .Component<&TGlowButtonPage::FCounter>(L"Counter")
                .Component<&TGlowButtonPage::FRoundedButton>(L"RoundedButton")
                .Component<&TGlowButtonPage::FPictureButton>(L"PictureButton")
                .Method<&TGlowButtonPage::ButtonClick>(L"ButtonClick");
        return meta;
    }

protected:
    void Paint() override {
        DrawTitle(GetCanvas(), Margin, 22, L"Alle Zustände");
        int top = 50;
        for (const TSize size : Sizes) {
            DrawGroups(top, size);
            top += size.Height + 40;
        }
        DrawMagnifiedGroups(390);
        DrawTitle(GetCanvas(), Margin, 506, L"Zum Anfassen");
    }

private:
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
            const int left = Margin + group * 143;
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
            DrawMagnified(GetCanvas(), Margin + group * 143, top, face, 4, clNone);
        }
    }

    void ButtonClick(TObject* sender) { FCounter->Count(sender); }

    TClickCounter* FCounter = nullptr;
    TQV7SkinButton* FRoundedButton = nullptr;
    TQV7SkinButton* FPictureButton = nullptr;
};

}  // namespace

TGalleryPage* CreateGlowButtonPage(TComponent* owner) {
    return new TGlowButtonPage(owner);
}

}  // namespace gallery
