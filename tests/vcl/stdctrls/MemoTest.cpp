#include "platform/vcl/stdctrls/Memo.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/stdctrls/Button.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class MemoTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Memo = Make<TMemo>({10, 10, 150, 110});
    }
    /// The same steps must leave the same text with a window and without.
    void ExpectText(const std::function<void(TStrings&)>& steps, const String& expected) {
        TMemo without(nullptr);
        steps(without.GetLines());
        EXPECT_EQ(without.GetText(), expected) << "without a window";
        Memo->Clear();
        steps(Memo->GetLines());
        EXPECT_EQ(Memo->GetText(), expected) << "with a window";
    }
    TMemo* Memo = nullptr;
};

TEST_F(MemoTest, LinesAreAddedInsertedReplacedAndDeleted) {
    ExpectText([](TStrings& lines) { lines.Add(L"a"), lines.Add(L"b"); }, L"a\r\nb");
    ExpectText([](TStrings& lines) { lines.Add(L"b"), lines.Insert(0, L"a"); }, L"a\r\nb");
    ExpectText([](TStrings& lines) { lines.Add(L"a"), lines.Add(L"b"), lines.Put(0, L"xyz"); }, L"xyz\r\nb");
    ExpectText([](TStrings& lines) { lines.Add(L"a"), lines.Add(L"b"), lines.Delete(0); }, L"b");
    ExpectText([](TStrings& lines) { lines.Add(L"a"), lines.Add(L"b"), lines.Delete(1); }, L"a");
    ExpectText([](TStrings& lines) { lines.Add(L"a"), lines.Add(L"b"), lines.Clear(); }, L"");
}

TEST_F(MemoTest, LinesWithoutTextAreLines) {
    for (const bool shown : {false, true}) {
        TMemo memo(nullptr);
        if (shown) memo.SetParent(&Form());
        TStrings& lines = memo.GetLines();
        for (const wchar_t* line : {L"", L"", L"one", L"", L"two", L""})
            lines.Add(line);
        EXPECT_EQ(memo.GetText(), L"\r\n\r\none\r\n\r\ntwo\r\n\r\n");
        ASSERT_EQ(lines.GetCount(), 6);
        EXPECT_EQ(lines.Get(5), L"");
        lines.Add(L"three");
        EXPECT_EQ(lines.GetCount(), 7);
        lines.Put(6, L"");
        EXPECT_EQ(lines.GetCount(), 7);
    }
}

TEST_F(MemoTest, LinesDoNotCountWrapping) {
    Memo->SetText(L"a very long line that has to be wrapped in so small a window\r\nsecond");
    EXPECT_EQ(Memo->GetLines().GetCount(), 2);
    EXPECT_EQ(Memo->GetLines().Get(1), L"second");
    EXPECT_THROW((void)Memo->GetLines().Get(2), EStringListError);
}

TEST_F(MemoTest, EnterMakesALineOrClicksTheDefaultButton) {
    int clicks = 0;
    auto* button = Make<TButton>({200, 10, 270, 30});
    button->SetDefault(true);
    button->OnClick = [&](TObject*) { ++clicks; };
    Memo->SetFocus();
    Input.Type(L"a");
    Input.KeyPress(VK_RETURN);
    Input.Type(L"b");
    EXPECT_EQ(Memo->GetText(), L"a\r\nb");
    EXPECT_EQ(clicks, 0);
    Memo->SetWantReturns(false);
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(Memo->GetText(), L"a\r\nb");
}

TEST_F(MemoTest, TabMovesTheFocusUnlessItIsWanted) {
    auto* button = Make<TButton>({200, 10, 270, 30});
    Memo->SetFocus();
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(button->Focused());
    Memo->SetWantTabs(true);
    Memo->SetFocus();
    Input.KeyPress(VK_TAB);
    EXPECT_TRUE(Memo->Focused());
    EXPECT_EQ(Memo->GetText(), L"\t");
}

TEST_F(MemoTest, TheCaretHasLineAndColumn) {
    Memo->SetText(L"abc\r\ndefg");
    Memo->SetCaretPos({2, 1});
    EXPECT_EQ(Memo->GetCaretPos(), TPoint(2, 1));
    EXPECT_EQ(Memo->GetSelStart(), 7);
}

TEST_F(MemoTest, ANewWindowKeepsTheText) {
    Memo->SetText(L"a\r\nb");
    Memo->SetScrollBars(ssBoth);
    EXPECT_EQ(Memo->GetText(), L"a\r\nb");
    EXPECT_TRUE(GetWindowLongW(Memo->WindowHandle(), GWL_STYLE) & WS_VSCROLL);
}

TEST_F(MemoTest, AllLinesAreTakenOverInOneChange) {
    TStringList lines;
    for (const wchar_t* line : {L"", L"one", L"", L"two", L""})
        lines.Add(line);
    int changes = 0;
    Memo->OnChange = [&](TObject*) { ++changes; };
    Memo->GetLines().Assign(&lines);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(Memo->GetText(), L"\r\none\r\n\r\ntwo\r\n\r\n");
    EXPECT_TRUE(Memo->GetLines().Equals(lines));
    Memo->GetLines().Assign(&Memo->GetLines());
    EXPECT_TRUE(Memo->GetLines().Equals(lines));
}

TEST_F(MemoTest, MayBeFreedWhileLinesAreTakenOver) {
    TStringList lines;
    lines.Add(L"one");
    lines.Add(L"two");
    Memo->OnChange = [this](TObject*) { delete std::exchange(Memo, nullptr); };
    Memo->GetLines().Assign(&lines);
    EXPECT_EQ(Memo, nullptr);
}

}  // namespace
}  // namespace test
