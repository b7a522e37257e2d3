// Components of classes that the designer does not know.

#include "designer/model/Placing.h"
#include "designer/surface/ComponentIcons.h"
#include "tests/designer/DesignerWindowFixture.h"

namespace designer {
namespace {

constexpr char FormWithUnknown[] =
    "object MainForm: TMainForm\r\n  BorderStyle = bsNone\r\n  ClientHeight = 200\r\n  ClientWidth = 300\r\n"
    "  object Fremd1: TNirgends\r\n    Farbe = clRed\r\n    Left = 40\r\n    Top = 24\r\n"
    "    object Innen1: TAuchNicht\r\n      Zahl = 7\r\n    end\r\n  end\r\n"
    "  object Panel1: TPanel\r\n    Left = 120\r\n    Top = 80\r\n    Width = 160\r\n    Height = 100\r\n"
    "    object Fremd2: TNirgends\r\n      Left = 16\r\n      Top = 8\r\n    end\r\n  end\r\nend\r\n";

class PlaceholderTest : public DesignerWindowTest {
protected:
    void SetUp() override {
        DesignerWindowTest::SetUp();
        Window->OpenFile(Dir.Write(L"form.dfm", FormWithUnknown));
        Start = Document().Text();
    }
    TComponent& Find(const wchar_t* name) { return *Document().Root().FindComponent(name); }
    std::string Start;
};

TEST_F(PlaceholderTest, StandsWhereTheFileSays) {
    EXPECT_EQ(DesignPlace(Find(L"Fremd1")), TPoint(40, 24));
    EXPECT_EQ(DesignPlace(Find(L"Fremd2")), TPoint(136, 88)) << "in the panel";
    Input.ClickAt(FormWindow(), 136 + 10, 88 + 10);
    EXPECT_EQ(Document().Selection().Names(), std::vector<String>{L"Fremd2"});
}

TEST_F(PlaceholderTest, ADragChangesItsPlaceInTheFileAndNothingElse) {
    POINT from{50, 34};
    ::ClientToScreen(FormWindow(), &from);
    Input.Drag(from, {from.x + 16, from.y + 8});
    EXPECT_TRUE(
        TextHas("    Farbe = clRed\r\n    Left = 56\r\n    Top = 32\r\n    object Innen1: TAuchNicht"))
        << Document().Text();
    Input.Chord({VK_CONTROL}, 'Z');
    EXPECT_EQ(Document().Text(), Start);
    EXPECT_EQ(DesignPlace(Find(L"Fremd1")), TPoint(40, 24));
}

TEST_F(PlaceholderTest, CanBeRenamedCopiedAndDeleted) {
    Input.ClickAt(FormWindow(), 50, 34);
    Answers.Name = L"Anders";
    Input.KeyPress(VK_F2);
    EXPECT_TRUE(TextHas("object Anders: TNirgends")) << Document().Text();
    Input.Chord({VK_CONTROL}, 'C');
    Input.Chord({VK_CONTROL}, 'V');
    EXPECT_TRUE(TextHas("object Nirgends1: TNirgends")) << Document().Text();
    Input.KeyPress(VK_DELETE);
    EXPECT_FALSE(TextHas("object Nirgends1: TNirgends"));
    for (int i = 0; i < 3; ++i)
        Input.Chord({VK_CONTROL}, 'Z');
    EXPECT_EQ(Document().Text(), Start);
}

}  // namespace
}  // namespace designer
