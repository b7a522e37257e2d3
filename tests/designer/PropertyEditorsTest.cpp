#include "designer/inspector/PropertyEditors.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Button.h"
#include "platform/vcl/stdctrls/Image.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "tests/designer/DesignFixture.h"
#include "tests/support/TempDir.h"

namespace designer {
namespace {

class TPreparedValues final : public TValueDialogs {
public:
    bool AskFont(TFont& font) override {
        font.SetSize(17);
        return Agree;
    }
    std::optional<TColor> AskColor(TColor present) override {
        Asked = present;
        return Agree ? std::optional<TColor>(0x00D78112) : std::nullopt;
    }
    std::optional<String> AskLines(const String& present) override {
        return Agree ? std::optional<String>(present + L"zwei\r\n") : std::nullopt;
    }
    std::optional<String> AskPicture(const String&) override {
        return Agree ? std::optional<String>(File) : std::nullopt;
    }

    bool Agree = true;
    TColor Asked = 0;
    String File;
};

class PropertyEditorsTest : public DesignTest {
protected:
    void SetUp() override {
        DesignTest::SetUp();
        RegisterClasses({&TMemo::StaticClass(), &TImage::StaticClass()});
        Begin(
            L"object Button1: TButton Left = 8 Top = 8 Width = 75 Height = 25 end\n"
            L"object Button2: TButton Left = 8 Top = 8 Width = 75 Height = 25 end\n"
            L"object Memo1: TMemo Left = 8 Top = 40 Width = 90 Height = 60 Color = clRed Lines.Strings = "
            L"('eins') end\n"
            L"object Image1: TImage Left = 8 Top = 120 Width = 40 Height = 40 end\n");
        List = std::make_unique<TPropertyList>(Document(), TPropertyList::TKind::Properties);
    }
    void TearDown() override {
        List.reset();
        DesignTest::TearDown();
    }
    /// Edits the property of what is chosen in its window.
    void Edit(const wchar_t* path) {
        List->Refresh();
        const TPropertyLine line = *List->Find(path);
        ASSERT_TRUE(HasValueEditor(line));
        EditValue(Document(), line, Dialogs);
    }

    TPreparedValues Dialogs;
    std::unique_ptr<TPropertyList> List;
};

TEST_F(PropertyEditorsTest, AFontGoesToAllChosenComponentsAsOneEdit) {
    Choose({L"Button1", L"Button2"});
    Edit(L"Font");
    EXPECT_EQ(Find<TButton>(L"Button1").GetFont().GetSize(), 17);
    EXPECT_EQ(Find<TButton>(L"Button2").GetFont().GetSize(), 17);
    EXPECT_EQ(Document().History().Count(), 1u);
}

TEST_F(PropertyEditorsTest, AUserWhoChangesHisMindChangesNothing) {
    Dialogs.Agree = false;
    Choose({L"Memo1"});
    for (const wchar_t* path : {L"Font", L"Lines", L"Color"})
        Edit(path);
    Choose({L"Image1"});
    Edit(L"Picture");
    EXPECT_FALSE(Document().IsModified());
}

TEST_F(PropertyEditorsTest, LinesAndColorsAreEdited) {
    Choose({L"Memo1"});
    Edit(L"Lines");
    EXPECT_NE(Document().Text().find("Lines.Strings = (\r\n      'eins'\r\n      'zwei')"), std::string::npos)
        << Document().Text();
    Edit(L"Color");
    EXPECT_EQ(Dialogs.Asked, clRed);
    EXPECT_EQ(Find<TMemo>(L"Memo1").GetColor(), 0x00D78112);
}

TEST_F(PropertyEditorsTest, APictureIsLoadedFromItsFile) {
    const test::TempDir dir;
    Dialogs.File = dir.File(L"picture.bmp");
    {
        TBitmap bitmap;
        bitmap.SetSize(5, 7);
        bitmap.SaveToFile(Dialogs.File);
    }
    Choose({L"Image1"});
    Edit(L"Picture");
    EXPECT_EQ(Find<TImage>(L"Image1").GetPicture().GetWidth(), 5);
    EXPECT_NE(Document().Text().find("Picture.Data = {"), std::string::npos);
    Document().Undo();
    EXPECT_EQ(Document().Text().find("Picture.Data"), std::string::npos);
}

TEST_F(PropertyEditorsTest, ADamagedPictureIsRefusedAndChangesNothing) {
    const test::TempDir dir;
    Dialogs.File = dir.Write(L"picture.bmp", "this is no picture");
    Choose({L"Image1"});
    EXPECT_THROW(Edit(L"Picture"), Exception);
    EXPECT_FALSE(Document().IsModified());
    EXPECT_EQ(Document().Text().find("Picture.Data"), std::string::npos);
}

}  // namespace
}  // namespace designer
