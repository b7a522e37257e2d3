#include "platform/vcl/stdctrls/Edit.h"

#include "platform/vcl/graphics/Font.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class EditTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Edit = Make<TEdit>({10, 10, 150, 31});
        Edit->OnChange = [this](TObject*) { ++Changes; };
    }
    TEdit* Edit = nullptr;
    int Changes = 0;
};

TEST_F(EditTest, TypingChangesTheText) {
    Edit->SetFocus();
    Input.Type(L"Weiß");
    EXPECT_EQ(Edit->GetText(), L"Weiß");
    EXPECT_EQ(Changes, 4);
    EXPECT_TRUE(Edit->GetModified());
}

TEST_F(EditTest, ATextSetByCodeChangesOnce) {
    Edit->SetText(L"abc");
    EXPECT_EQ(Changes, 1);
    Edit->SetText(L"abc");
    EXPECT_EQ(Changes, 1);
    EXPECT_FALSE(Edit->GetModified());
    TEdit without(nullptr);
    without.OnChange = [this](TObject*) { ++Changes; };
    without.SetText(L"x");
    EXPECT_EQ(Changes, 2);
}

TEST_F(EditTest, TheSelectionCanBeReadAndReplaced) {
    Edit->SetText(L"one two three");
    Edit->SetSelStart(4);
    Edit->SetSelLength(3);
    EXPECT_EQ(Edit->GetSelText(), L"two");
    Edit->SetSelText(L"2");
    EXPECT_EQ(Edit->GetText(), L"one 2 three");
    Edit->Undo();
    EXPECT_EQ(Edit->GetText(), L"one two three");
}

TEST_F(EditTest, TabSelectsAllAMouseClickDoesNot) {
    auto* other = Make<TEdit>({10, 40, 150, 61});
    Edit->SetText(L"text");
    other->SetFocus();
    Input.KeyPress(VK_TAB);
    ASSERT_TRUE(Edit->Focused());
    EXPECT_EQ(Edit->GetSelLength(), 4);
    other->SetFocus();
    Edit->SetSelStart(0);
    Input.ClickAt(Edit->WindowHandle(), 3, 5);
    EXPECT_EQ(Edit->GetSelLength(), 0);
}

TEST_F(EditTest, LimitsAndStylesApplyToWhatIsTyped) {
    Edit->SetMaxLength(3);
    Edit->SetCharCase(ecUpperCase);
    Edit->SetFocus();
    Input.Type(L"abcd");
    EXPECT_EQ(Edit->GetText(), L"ABC");
    Edit->SetReadOnly(true);
    Input.KeyPress(VK_BACK);
    EXPECT_EQ(Edit->GetText(), L"ABC");
}

TEST_F(EditTest, ANewWindowKeepsTextAndModified) {
    Edit->SetFocus();
    Input.Type(L"ab");
    const int before = Changes;
    Edit->SetPasswordChar(L'*');
    EXPECT_EQ(Edit->GetText(), L"ab");
    EXPECT_TRUE(Edit->GetModified());
    EXPECT_EQ(Changes, before);
    EXPECT_EQ(SendMessageW(Edit->WindowHandle(), EM_GETPASSWORDCHAR, 0, 0), L'*');
    EXPECT_TRUE(Edit->Focused());
}

TEST_F(EditTest, TheHeightFollowsTheFont) {
    const int before = Edit->GetHeight();
    Edit->GetFont().SetHeight(-30);
    const int grown = Edit->GetHeight();
    EXPECT_GT(grown, before + 15);
    Edit->SetAutoSize(false);
    Edit->SetHeight(50);
    EXPECT_EQ(Edit->GetHeight(), 50);
    Edit->SetAutoSize(true);
    EXPECT_EQ(Edit->GetHeight(), grown);
}

TEST_F(EditTest, CutCopyAndPasteUseTheClipboard) {
    Edit->SetText(L"clip");
    Edit->SelectAll();
    Edit->CutToClipboard();
    EXPECT_EQ(Edit->GetText(), L"");
    Edit->PasteFromClipboard();
    Edit->PasteFromClipboard();
    EXPECT_EQ(Edit->GetText(), L"clipclip");
}

}  // namespace
}  // namespace test
