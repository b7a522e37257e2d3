#include "platform/vcl/graphics/Picture.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Jpeg.h"
#include "platform/vcl/graphics/Pen.h"
#include "platform/vcl/graphics/Png.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/TempDir.h"
#include "tests/vcl/graphics/TestPictures.h"

namespace vcl {
namespace {

using probes::MessageOf;
using probes::Numbered;
using probes::Paint;
using probes::Shows;

class PictureTest : public test::LedgerTest {
protected:
    /// The table of file formats and the decoders live as long as the process.
    void SetUp() override {
        static bool warm = false;
        if (!std::exchange(warm, true)) {
            const test::TempDir folder;
            TPicture picture;
            Save<TJPEGImage>(folder.File(L"a.jpg"));
            picture.LoadFromFile(folder.File(L"a.jpg"));
        }
        LedgerTest::SetUp();
    }

    template <class T>
    static void Save(const String& name) {
        TBitmap bitmap(6, 4, pf24bit);
        Paint(bitmap, Numbered);
        T image;
        image.Assign(&bitmap);
        image.SaveToFile(name);
    }
};

TEST_F(PictureTest, ANewPictureHoldsNothing) {
    const TPicture picture;
    EXPECT_EQ(picture.GetGraphic(), nullptr);
    EXPECT_EQ(picture.GetWidth(), 0);
    EXPECT_EQ(picture.GetHeight(), 0);
}

TEST_F(PictureTest, AGraphicIsCopied) {
    TBitmap bitmap(6, 4, pf24bit);
    Paint(bitmap, Numbered);
    TPicture picture;
    int changes = 0;
    picture.OnChange = [&](TObject* sender) {
        EXPECT_EQ(sender, &picture);
        ++changes;
    };
    picture.SetGraphic(&bitmap);
    EXPECT_EQ(changes, 1);
    EXPECT_NE(picture.GetGraphic(), &bitmap);
    EXPECT_EQ(picture.GetWidth(), 6);
    EXPECT_EQ(picture.GetHeight(), 4);
    bitmap.GetCanvas().FillRect({0, 0, 6, 4});
    EXPECT_TRUE(Shows(picture.GetBitmap(), Numbered));
    EXPECT_EQ(changes, 1);
    picture.SetGraphic(picture.GetGraphic());
    EXPECT_EQ(changes, 1);
    picture.SetGraphic(nullptr);
    EXPECT_EQ(picture.GetGraphic(), nullptr);
    EXPECT_EQ(changes, 2);
}

TEST_F(PictureTest, AChangeOfTheContentsIsTold) {
    TPicture picture;
    int changes = 0;
    picture.OnChange = [&](TObject*) { ++changes; };
    TBitmap& bitmap = picture.GetBitmap();
    EXPECT_EQ(changes, 0);
    bitmap.SetSize(3, 3);
    EXPECT_EQ(changes, 1);
    bitmap.GetCanvas().SetPixel(0, 0, clRed);
    EXPECT_EQ(changes, 2);
}

TEST_F(PictureTest, AskingForABitmapMakesOne) {
    TPicture picture;
    EXPECT_TRUE(picture.GetBitmap().GetEmpty());
    EXPECT_EQ(picture.GetGraphic(), &picture.GetBitmap());
    EXPECT_TRUE(picture.GetIcon().GetEmpty());
    EXPECT_EQ(picture.GetGraphic(), &picture.GetIcon());
}

TEST_F(PictureTest, PicturesAreAssignedToEachOther) {
    TPicture source;
    source.GetBitmap().SetSize(5, 2);
    TPicture target;
    target.Assign(&source);
    EXPECT_EQ(target.GetWidth(), 5);
    EXPECT_NE(target.GetGraphic(), source.GetGraphic());
    TBitmap bitmap;
    bitmap.Assign(&source);
    EXPECT_EQ(bitmap.GetWidth(), 5);
    target.Assign(&bitmap);
    EXPECT_EQ(target.GetHeight(), 2);
    target.Assign(&target);
    EXPECT_EQ(target.GetHeight(), 2);
    target.Assign(nullptr);
    EXPECT_EQ(target.GetGraphic(), nullptr);
    bitmap.Assign(&target);
    EXPECT_TRUE(bitmap.GetEmpty());
    const TPen pen;
    EXPECT_THROW(target.Assign(&pen), EConvertError);
}

TEST_F(PictureTest, FilesAreLoadedByTheirExtension) {
    const test::TempDir folder;
    Save<TBitmap>(folder.File(L"a.BMP"));
    Save<TJPEGImage>(folder.File(L"b.Jpg"));
    Save<TPngImage>(folder.File(L"c.png"));
    TPicture picture;
    picture.LoadFromFile(folder.File(L"a.BMP"));
    EXPECT_TRUE(Shows(picture.GetBitmap(), Numbered));
    picture.LoadFromFile(folder.File(L"b.Jpg"));
    EXPECT_NE(dynamic_cast<TJPEGImage*>(picture.GetGraphic()), nullptr);
    EXPECT_EQ(picture.GetWidth(), 6);
    picture.LoadFromFile(folder.File(L"c.png"));
    EXPECT_NE(dynamic_cast<TPngImage*>(picture.GetGraphic()), nullptr);
    picture.SaveToFile(folder.File(L"d.png"));
    EXPECT_EQ(folder.Read(L"d.png"), folder.Read(L"c.png"));
}

TEST_F(PictureTest, UnknownExtensionsAndDamagedFilesKeepThePicture) {
    const test::TempDir folder;
    folder.Write(L"a.bmp", "BM and nothing more");
    TPicture picture;
    picture.GetBitmap().SetSize(3, 3);
    EXPECT_EQ(MessageOf<EInvalidGraphic>([&] { picture.LoadFromFile(L"a.xyz"); }),
              L"Unknown picture file extension (.xyz)");
    EXPECT_EQ(MessageOf<EInvalidGraphic>([&] { picture.LoadFromFile(L"folder.bmp\\noextension"); }),
              L"Unknown picture file extension (.)");
    EXPECT_THROW(picture.LoadFromFile(folder.File(L"a.bmp")), EInvalidGraphic);
    EXPECT_THROW(picture.LoadFromFile(folder.File(L"missing.bmp")), EFOpenError);
    EXPECT_EQ(picture.GetWidth(), 3);
}

TEST_F(PictureTest, OtherFormatsCanBeRegistered) {
    const test::TempDir folder;
    Save<TBitmap>(folder.File(L"a.PictureTest"));
    TPicture::RegisterFileFormat(L"picturetest", [] { return std::make_unique<TBitmap>(); });
    TakeSnapshot();
    {
        TPicture picture;
        picture.LoadFromFile(folder.File(L"a.PictureTest"));
        EXPECT_EQ(picture.GetWidth(), 6);
    }
}

TEST_F(PictureTest, ALoadedPictureTellsItsChanges) {
    const test::TempDir folder;
    Save<TBitmap>(folder.File(L"a.bmp"));
    TPicture picture;
    int changes = 0;
    picture.OnChange = [&](TObject*) { ++changes; };
    picture.LoadFromFile(folder.File(L"a.bmp"));
    EXPECT_EQ(changes, 1);
    picture.GetBitmap().SetWidth(2);
    EXPECT_EQ(changes, 2);
}

}  // namespace
}  // namespace vcl
