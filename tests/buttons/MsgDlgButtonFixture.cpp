#include "tests/buttons/MsgDlgButtonFixture.h"

#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"

namespace test {

using namespace vcl;

void MsgDlgButtonTest::SetUp() {
    FormTest::SetUp();
    Form().SetColor(clWhite);
    Button = Make<ProbeMsgDlgButton>({20, 30, 320, 90});
    Button->GetFont().SetQuality(fqNonAntialiased);
    Button->GetFontDescription().SetQuality(fqNonAntialiased);
    Button->SetCaption(L"Speichern");
    Button->GetDescription().Add(L"Legt die Datei ab.");
    Button->GetDescription().Add(L"Die alte geht verloren.");
    Form().SetActiveControl(nullptr);
    PumpAll();
}

void MsgDlgButtonTest::TearDown() {
    Images.reset();
    FormTest::TearDown();
}

Pixels MsgDlgButtonTest::Shown() {
    return ReadClient(Form().WindowHandle()).Part(Button->GetBoundsRect());
}

Pixels MsgDlgButtonTest::Letters(const TFont& font, const std::wstring& text, const TRect& place,
                                 UINT flags) const {
    return Drawn(Button->GetWidth(), Button->GetHeight(), White, [&](HDC dc) {
        const HGDIOBJ former = ::SelectObject(dc, font.GetHandle());
        ::SetBkMode(dc, TRANSPARENT);
        RECT rect = place;
        ::DrawTextW(dc, text.data(), static_cast<int>(text.size()), &rect, flags);
        ::SelectObject(dc, former);
    });
}

Pixels MsgDlgButtonTest::Expected(COLORREF ground, COLORREF text, int dx, int dy) const {
    const int width = Button->GetWidth(), height = Button->GetHeight();
    const auto lineHeight = [](const TFont& font) {
        TBitmap scratch(1, 1);
        scratch.GetCanvas().SetFont(font);
        return scratch.GetCanvas().TextHeight(L"Aq");
    };
    const TFont &caption = Button->GetFont(), &description = Button->GetFontDescription();
    const int first = lineHeight(caption), next = lineHeight(description);
    const int images = Button->GetImageList() ? Button->GetImageList()->GetWidth() + 3 : 0;
    const TAlignment alignment = Button->GetAlignment();
    const UINT flags = DT_SINGLELINE | (alignment == taRightJustify ? DT_RIGHT
                                        : alignment == taCenter     ? DT_CENTER
                                                                    : DT_LEFT);
    const int lines = Button->GetDescription().GetCount();
    TRect place{3 + images + 20, (height - first - lines * next) / 2, width - 3, 0};
    place.Bottom = place.Top + first + lines * next;
    Pixels expected(width, height, ground);
    const auto draw = [&](const TFont& font, const std::wstring& line, UINT more) {
        TRect moved = place;
        moved.Offset(0, dy);
        (alignment == taRightJustify ? moved.Right : moved.Left) += dx;
        const Pixels letters = Letters(font, line, moved, flags | more);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if (letters.At(x, y) == 0) expected.Set(x, y, text);
    };
    draw(caption, Button->GetCaption(), 0);
    place.Top += first;
    for (int i = 0; i < lines; ++i) {
        draw(description, Button->GetDescription().Get(i), DT_NOPREFIX);
        place.Top += next;
    }
    return expected;
}

void MsgDlgButtonTest::MakeImages(int count) {
    Images = std::make_unique<TImageList>(nullptr);
    for (int i = 0; i < count; ++i) {
        TBitmap image(16, 16, pf24bit);
        image.GetCanvas().GetBrush().SetColor(0x00FF00FF);
        image.GetCanvas().FillRect({0, 0, 16, 16});
        image.GetCanvas().GetBrush().SetColor(ImageColor(i));
        image.GetCanvas().FillRect({2, 2, 14, 14});
        Images->Add(&image, nullptr);
    }
    Button->SetImageList(Images.get());
}

}  // namespace test
