#include "platform/vcl/graphics/Icon.h"

#include "platform/vcl/core/Exceptions.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::MessageOf;

/// Icons of 16 x 16: a red square whose outer pixels are transparent.
class IconTest : public probes::PaintingTest {
protected:
    IconTest() : PaintingTest(40, 40) { CountIconsToo(); }

    static HICON MakeIcon() {
        TBitmap color(16, 16, pf24bit);
        probes::Paint(color, [](int x, int y) { return IsInside(x, y) ? clRed : clBlack; });
        TBitmap mask(16, 16, pf24bit);
        probes::Paint(mask, [](int x, int y) { return IsInside(x, y) ? clBlack : clWhite; });
        mask.SetPixelFormat(pf1bit);
        ICONINFO info{};
        info.fIcon = TRUE;
        info.hbmColor = color.GetHandle();
        info.hbmMask = mask.GetHandle();
        return ::CreateIconIndirect(&info);
    }
    static bool IsInside(int x, int y) { return TRect(2, 2, 14, 14).Contains({x, y}); }
};

TEST_F(IconTest, AnIconIsTakenOver) {
    TIcon icon;
    EXPECT_TRUE(icon.GetEmpty());
    int changes = 0;
    icon.OnChange = [&](TObject*) { ++changes; };
    icon.SetHandle(MakeIcon());
    EXPECT_FALSE(icon.GetEmpty());
    EXPECT_EQ(icon.GetWidth(), 16);
    EXPECT_EQ(icon.GetHeight(), 16);
    EXPECT_TRUE(icon.GetTransparent());
    EXPECT_EQ(changes, 1);
    icon.SetHandle(nullptr);
    EXPECT_TRUE(icon.GetEmpty());
    EXPECT_EQ(icon.GetWidth(), 0);
}

TEST_F(IconTest, DrawingLeavesTheGround) {
    TIcon icon;
    icon.SetHandle(MakeIcon());
    Canvas().GetBrush().SetColor(clLime);
    Canvas().FillRect({0, 0, 40, 40});
    Canvas().Draw(4, 5, &icon);
    EXPECT_TRUE(
        probes::Shows(Bitmap(), [](int x, int y) { return IsInside(x - 4, y - 5) ? clRed : clLime; }));
    Canvas().FillRect({0, 0, 40, 40});
    Canvas().StretchDraw({0, 0, 32, 32}, &icon);
    EXPECT_EQ(At(16, 16), clRed);
    EXPECT_EQ(At(0, 0), clLime);
}

TEST_F(IconTest, CopiesShareTheHandle) {
    TIcon copy;
    {
        TIcon icon;
        icon.SetHandle(MakeIcon());
        copy.Assign(&icon);
        EXPECT_EQ(copy.GetHandle(), icon.GetHandle());
    }
    EXPECT_EQ(copy.GetWidth(), 16);
    TBitmap bitmap;
    bitmap.Assign(&copy);
    EXPECT_EQ(bitmap.GetWidth(), 16);
    EXPECT_EQ(bitmap.GetCanvas().GetPixel(8, 8), clRed);
    EXPECT_EQ(bitmap.GetCanvas().GetPixel(0, 0), clWhite);
    copy.Assign(nullptr);
    EXPECT_TRUE(copy.GetEmpty());
}

TEST_F(IconTest, WhatIsSavedIsReadBack) {
    TIcon icon;
    icon.SetHandle(MakeIcon());
    const std::vector<std::byte> bytes = icon.SaveToBytes();
    TIcon back;
    back.LoadFromBytes(bytes);
    EXPECT_EQ(back.GetWidth(), 16);
    EXPECT_EQ(back.GetHeight(), 16);
    Canvas().GetBrush().SetColor(clLime);
    Canvas().FillRect({0, 0, 40, 40});
    Canvas().Draw(0, 0, &back);
    EXPECT_TRUE(probes::Shows(Bitmap(), [](int x, int y) { return IsInside(x, y) ? clRed : clLime; }));
    EXPECT_TRUE(TIcon().SaveToBytes().empty());
}

TEST_F(IconTest, DamagedFilesAreRefused) {
    TIcon icon;
    icon.SetHandle(MakeIcon());
    const std::vector<std::byte> bytes = icon.SaveToBytes();
    for (std::size_t length = 0; length < bytes.size(); length += length < 64 ? 1 : 37)
        ASSERT_EQ(MessageOf<EInvalidGraphic>([&] { icon.LoadFromBytes(std::span(bytes).first(length)); }),
                  L"Icon image is not valid")
            << length;
    EXPECT_EQ(icon.GetWidth(), 16);
}

TEST_F(IconTest, AnUnknownResourceStandsInTheError) {
    TIcon icon;
    EXPECT_EQ(
        MessageOf<EResNotFound>([&] { icon.LoadFromResourceName(GetModuleHandleW(nullptr), L"NOSUCHICON"); }),
        L"Resource NOSUCHICON not found");
    EXPECT_THROW(icon.SetWidth(3), EInvalidGraphicOperation);
    EXPECT_THROW(icon.SetHeight(3), EInvalidGraphicOperation);
}

}  // namespace
}  // namespace vcl
