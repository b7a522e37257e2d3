#include "designer/dialogs/ImageListDialog.h"

#include "designer/dialogs/RowList.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Png.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/designer/DialogDriver.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

constexpr TColor Red = 0x000000FF;
constexpr TColor Green = 0x0000FF00;
constexpr TColor Blue = 0x00FF0000;

class TPreparedPictures final : public TValueDialogs {
public:
    explicit TPreparedPictures(std::vector<String>& files) : FFiles(files) {}
    std::optional<String> AskPicture(const String&) override { return FFiles.front(); }
    std::vector<String> AskPictures() override { return FFiles; }

private:
    std::vector<String>& FFiles;
};

class ImageListDialogTest : public DesignerWindowTest {
protected:
    void SetUp() override {
        DesignerWindowTest::SetUp();
        Window->SetValueDialogs(std::make_unique<TPreparedPictures>(Files));
        Window->OpenFile(Dir.Write(L"form.dfm",
                                   "object MainForm: TMainForm\r\n  ClientHeight = 200\r\n  ClientWidth = "
                                   "300\r\n  object Images: TImageList\r\n    Left = 60\r\n    Top = 50\r\n"
                                   "  end\r\nend\r\n"));
    }
    TImageList& Images() { return dynamic_cast<TImageList&>(*Document().Root().FindComponent(L"Images")); }
    /// A bitmap file filled with the colour, with a lower left pixel of another one.
    String Bitmap(const wchar_t* name, TColor color, TSize size = {16, 16}) {
        TBitmap bitmap(size.Width, size.Height, pf24bit);
        bitmap.GetCanvas().GetBrush().SetColor(color);
        bitmap.GetCanvas().FillRect({0, 0, size.Width, size.Height});
        bitmap.WriteBits().SetColor(0, size.Height - 1, clFuchsia);
        bitmap.SaveToFile(Dir.File(name));
        return Dir.File(name);
    }
    void Edit(const std::function<void(DialogDriver&)>& steps) {
        bool ran = false;
        InDialog(L"Bilder", [&](DialogDriver& dialog) {
            ran = true;
            steps(dialog);
        });
        Input.DoubleClickAt(FormWindow(), 66, 56);
        EXPECT_TRUE(ran);
    }
    /// The colour of the image in its middle; white where it is transparent.
    TColor ColorOf(int index, int x = 8, int y = 8) {
        TBitmap bitmap(16, 16, pf32bit);
        Images().Draw(bitmap.GetCanvas(), 0, 0, index);
        return bitmap.ReadBits().GetColor(x, y);
    }
    std::vector<String> Files;
};

TEST_F(ImageListDialogTest, PicturesAreAddedWithTheirTransparentPixels) {
    Files = {Bitmap(L"red.bmp", Red), Bitmap(L"green.bmp", Green)};
    Edit([&](DialogDriver& dialog) {
        dialog.Press(L"Neu …");
        EXPECT_EQ(dialog.List().Count(), 2);
        EXPECT_EQ(dialog.List().GetChosen(), 1) << "the last one that was added";
        dialog.Picture(L"images");
        dialog.Press(L"OK");
    });
    ASSERT_EQ(Images().GetCount(), 2);
    EXPECT_EQ(ColorOf(0), Red);
    EXPECT_EQ(ColorOf(1), Green);
    EXPECT_EQ(ColorOf(0, 0, 15), clWhite) << "the lower left pixel is not drawn";
    EXPECT_TRUE(TextHas("Bitmap = {\r\n      494C"));
    EXPECT_EQ(Document().History().Count(), 1u);
    const std::string after = Document().Text();
    Document().Undo();
    EXPECT_FALSE(TextHas("Bitmap ="));
    Document().Redo();
    EXPECT_EQ(Document().Text(), after);
    EXPECT_EQ(ColorOf(1), Green);
}

TEST_F(ImageListDialogTest, APngIsTransparentWhereItsAlphaSays) {
    TPngImage png;
    {
        TBitmap bitmap(16, 16, pf32bit);
        const TBitmapBits bits = bitmap.WriteBits();
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                bits.SetColor(x, y, x < 8 ? clBlack : Blue);
                bits.Pixel(x, y)[3] = x < 8 ? 0 : 255;
            }
        }
        png.Assign(&bitmap);
    }
    png.SaveToFile(Dir.File(L"half.png"));
    Files = {Dir.File(L"half.png")};
    Edit([&](DialogDriver& dialog) {
        dialog.Press(L"Neu …");
        dialog.Picture(L"images-png");
        dialog.Press(L"OK");
    });
    ASSERT_EQ(Images().GetCount(), 1);
    EXPECT_EQ(ColorOf(0, 12), Blue);
    EXPECT_EQ(ColorOf(0, 3), clWhite);
}

TEST_F(ImageListDialogTest, APictureOfAnotherSizeIsFittedAndAStripIsCut) {
    Files = {Bitmap(L"large.bmp", Red, {64, 32}), Bitmap(L"small.bmp", Green, {4, 4}),
             Bitmap(L"strip.bmp", Blue, {48, 16})};
    Edit([&](DialogDriver& dialog) {
        dialog.Press(L"Neu …");
        dialog.Press(L"OK");
    });
    ASSERT_EQ(Images().GetCount(), 5);
    EXPECT_EQ(ColorOf(0), Red);
    EXPECT_EQ(ColorOf(0, 8, 2), clWhite) << "16 by 8 pixels in the middle";
    EXPECT_EQ(ColorOf(1), Green);
    EXPECT_EQ(ColorOf(1, 3, 8), clWhite);
    EXPECT_EQ(ColorOf(4), Blue);
}

TEST_F(ImageListDialogTest, ImagesAreMovedReplacedAndDeleted) {
    Files = {Bitmap(L"red.bmp", Red), Bitmap(L"green.bmp", Green), Bitmap(L"blue.bmp", Blue)};
    Edit([&](DialogDriver& dialog) {
        dialog.Press(L"Neu …");
        dialog.ClickRow(2);
        dialog.Press(L"Hinauf");
        dialog.Input.Chord({VK_CONTROL}, VK_UP);  // the button has the focus: nothing
        dialog.DragRow(0, 3);
        dialog.Press(L"OK");
    });
    EXPECT_EQ(ColorOf(0), Blue);
    EXPECT_EQ(ColorOf(1), Green);
    EXPECT_EQ(ColorOf(2), Red);
    Edit([&](DialogDriver& dialog) {
        dialog.Input.KeyPress(VK_END);
        dialog.Input.Chord({VK_CONTROL}, VK_UP);
        dialog.Press(L"OK");
    });
    EXPECT_EQ(ColorOf(1), Red);
    Files = {Bitmap(L"yellow.bmp", 0x0000FFFF)};
    Edit([&](DialogDriver& dialog) {
        dialog.Press(L"Ersetzen …");
        dialog.ClickRow(1);
        dialog.Input.KeyPress(VK_DELETE);
        EXPECT_EQ(dialog.List().Count(), 2);
        dialog.Press(L"OK");
    });
    ASSERT_EQ(Images().GetCount(), 2);
    EXPECT_EQ(ColorOf(0), 0x0000FFFF);
    EXPECT_EQ(ColorOf(1), Green);
    Edit([&](DialogDriver& dialog) {
        dialog.Press(L"Alle löschen");
        dialog.Press(L"OK");
    });
    EXPECT_EQ(Images().GetCount(), 0);
}

TEST_F(ImageListDialogTest, AUserWhoChangesHisMindChangesNothing) {
    Files = {Bitmap(L"red.bmp", Red)};
    Edit([&](DialogDriver& dialog) {
        dialog.Press(L"Neu …");
        dialog.Press(L"Abbrechen");
    });
    EXPECT_FALSE(Document().IsModified());
    EXPECT_EQ(Images().GetCount(), 0);
}

TEST_F(ImageListDialogTest, AFileThatIsNoPictureIsToldAndTheOthersComeIn) {
    Files = {Dir.Write(L"bad.bmp", "no picture"), Bitmap(L"red.bmp", Red)};
    Edit([&](DialogDriver& dialog) {
        bool told = false;
        InDialog(L"QV7 Designer", [&told](DialogDriver&) { told = true; });
        dialog.Press(L"Neu …");
        EXPECT_TRUE(told);
        dialog.Press(L"OK");
    });
    EXPECT_EQ(Images().GetCount(), 1);
}

}  // namespace
}  // namespace designer
