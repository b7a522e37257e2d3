#include "platform/vcl/forms/Clipboard.h"

#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class ClipboardTest : public FormTest {
protected:
    void TearDown() override {
        Clipboard().Clear();
        FormTest::TearDown();
    }
};

TEST_F(ClipboardTest, GivesATextBack) {
    const String text = L"Wei\xDF \xD83D\xDE00\r\nzweite Zeile";
    Clipboard().SetAsText(text);
    EXPECT_TRUE(Clipboard().HasFormat(CF_UNICODETEXT));
    EXPECT_EQ(Clipboard().GetAsText(), text);
    Clipboard().SetAsText(L"other");
    EXPECT_EQ(Clipboard().GetAsText(), L"other");
}

TEST_F(ClipboardTest, IsEmptyWhenNobodyPutATextThere) {
    Clipboard().SetAsText(L"text");
    Clipboard().Clear();
    EXPECT_FALSE(Clipboard().HasFormat(CF_UNICODETEXT));
    EXPECT_EQ(Clipboard().GetAsText(), L"");
}

TEST_F(ClipboardTest, ReadsATextWithoutAnEnd) {
    ASSERT_TRUE(::OpenClipboard(Application().GetHandle()));
    ::EmptyClipboard();
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, 2 * sizeof(wchar_t));
    auto* place = static_cast<wchar_t*>(::GlobalLock(memory));
    place[0] = L'a';
    place[1] = L'b';
    ::GlobalUnlock(memory);
    ::SetClipboardData(CF_UNICODETEXT, memory);
    ::CloseClipboard();
    // The system may put the end in the place of the last character.
    const String text = Clipboard().GetAsText();
    EXPECT_TRUE(text == L"ab" || text == L"a") << text.size();
}

TEST_F(ClipboardTest, SharesItsTextWithEditors) {
    auto* edit = Make<TEdit>({10, 10, 110, 30});
    Clipboard().SetAsText(L"pasted");
    edit->SetText(L"");
    edit->PasteFromClipboard();
    EXPECT_EQ(edit->GetText(), L"pasted");
    edit->SetText(L"copied");
    edit->SelectAll();
    edit->CopyToClipboard();
    EXPECT_EQ(Clipboard().GetAsText(), L"copied");
}

}  // namespace
}  // namespace test
