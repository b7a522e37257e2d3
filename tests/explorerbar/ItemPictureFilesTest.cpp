#include "platform/vcl/graphics/Jpeg.h"
#include "tests/explorerbar/ItemFixture.h"
#include "tests/support/TempDir.h"

namespace qv7skin {
namespace {

class ItemPictureFilesTest : public probes::ItemTest {
protected:
    /// Saves a picture of 24 x 10 pixels in two halves, in the format of the class, under the name.
    template <class Graphic>
    String Saved(const wchar_t* name) {
        const auto bitmap = probes::BitmapOf(
            test::Pixels(24, 10, [](int x, int) { return x < 12 ? RGB(200, 30, 30) : RGB(20, 60, 220); }));
        Graphic picture;
        picture.Assign(bitmap.get());
        const String path = Folder.File(name);
        picture.SaveToFile(path);
        return path;
    }
    static bool Near(COLORREF a, COLORREF b) {
        const auto close = [](int x, int y) { return x - y <= 24 && y - x <= 24; };
        return close(GetRValue(a), GetRValue(b)) && close(GetGValue(a), GetGValue(b)) &&
               close(GetBValue(a), GetBValue(b));
    }
    test::TempDir Folder;
};

TEST_F(ItemPictureFilesTest, BitmapFilesAreRead) {
    for (const wchar_t* name : {L"a.bmp", L"b.BMP", L"c.d.Bmp"}) {
        TQV7SkinExplorerItemBmp item(Saved<TBitmap>(name));
        ASSERT_NE(item.GetImage(), nullptr) << ToUtf8(name);
        EXPECT_EQ(item.GetImage()->GetWidth(), 24);
        item.SetAlignment(taLeftJustify);
        EXPECT_EQ(Drawn(item), 11);
        EXPECT_EQ(Shown().At(5 + 3, 5), RGB(200, 30, 30));
        EXPECT_EQ(Shown().At(5 + 20, 5), RGB(20, 60, 220));
    }
}

TEST_F(ItemPictureFilesTest, JpegFilesAreReadAndBecomeBitmaps) {
    for (const wchar_t* name : {L"a.jpg", L"b.JPG"}) {
        Wipe();
        TQV7SkinExplorerItemBmp item(Saved<TJPEGImage>(name));
        ASSERT_NE(item.GetImage(), nullptr) << ToUtf8(name);
        EXPECT_EQ(item.GetImage()->GetHeight(), 10);
        item.SetAlignment(taLeftJustify);
        Drawn(item);
        EXPECT_TRUE(Near(Shown().At(5 + 3, 5), RGB(200, 30, 30)));
        EXPECT_TRUE(Near(Shown().At(5 + 20, 5), RGB(20, 60, 220)));
    }
}

TEST_F(ItemPictureFilesTest, OtherAndMissingFilesGiveNoPicture) {
    const String png = Saved<TBitmap>(L"a.png");
    const String jpeg = Saved<TJPEGImage>(L"b.jpeg");
    const String bare = Saved<TBitmap>(L"bmp");
    for (const String& name : {png, jpeg, bare, Folder.File(L"missing.bmp"), Folder.Path(), String()}) {
        TQV7SkinExplorerItemBmp item(name);
        EXPECT_EQ(item.GetImage(), nullptr) << ToUtf8(name);
        EXPECT_EQ(Drawn(item), 0);
    }
}

TEST_F(ItemPictureFilesTest, ADamagedFileRaisesWhatItsLoaderRaises) {
    const String bmp = Folder.Write(L"a.bmp", "BM, but no bitmap");
    EXPECT_THROW(TQV7SkinExplorerItemBmp item(bmp), EInvalidGraphic);
    const String jpg = Folder.Write(L"a.jpg", "no picture");
    EXPECT_THROW(TQV7SkinExplorerItemBmp item(jpg), EInvalidGraphic);
}

}  // namespace
}  // namespace qv7skin
