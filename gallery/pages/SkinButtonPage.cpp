#include <array>

#include "buttons/UnitQV7SkinButton.h"
#include "gallery/ClickCounter.h"
#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"
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
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        using C = TShownButton;
        static const TMetaClass meta =
            DefineClass<C>(L"TShownButton", TCustomQV7SkinButton::StaticClass())
                .With(StateRows)
                .With(TabRows)
                .With(ActionRows)
                .Property(L"ButtonStyle", &C::GetButtonStyle, &C::SetButtonStyle, bxsPush)
                .With(MouseRows);
        return meta;
    }
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
        RegisterClasses({&TClickCounter::StaticClass(), &TShownButton::StaticClass()});
        InitInheritedComponent(*this, TGalleryPage::StaticClass());
    }
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass() {
        static const TMetaClass meta =
            DefineClass<TSkinButtonPage>(L"TSkinButtonPage", TGalleryPage::StaticClass())
                .Component<&TSkinButtonPage::FCounter>(L"Counter")
                .Method<&TSkinButtonPage::ButtonClick>(L"ButtonClick");
        return meta;
    }

protected:
    void Paint() override {
        DrawTitle(GetCanvas(), Margin, 22, L"Alle Zustände");
        int top = 50;
        for (const TSize size : Sizes) {
            DrawStates(top, size);
            top += size.Height + 40;
        }
        DrawMagnifiedStates(390);
        DrawTitle(GetCanvas(), Margin, 506, L"Zum Anfassen");
    }

private:
    void DrawStates(int top, TSize size) {
        constexpr int perRow = 6;
        TShownButton button(nullptr);
        button.SetBounds(0, 0, size.Width, size.Height);
        button.SetCaption(L"Speichern");
        const int columns =
            size.Width > 110 ? 4 : perRow;  // the pictures of the last two states are the pressed one
        for (int state = 0; state < columns; ++state) {
            const int left = Margin + state * (size.Width > 110 ? 172 : 119);
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
            DrawMagnified(GetCanvas(), Margin + state * 172, top, frame, factor, clNone);
        }
    }

    void ButtonClick(TObject* sender) { FCounter->Count(sender); }

    TClickCounter* FCounter = nullptr;
};

}  // namespace

TGalleryPage* CreateSkinButtonPage(TComponent* owner) {
    return new TSkinButtonPage(owner);
}

}  // namespace gallery
