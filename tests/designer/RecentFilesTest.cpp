#include "designer/files/RecentFiles.h"

#include "designer/files/SafeFile.h"
#include "platform/vcl/menus/MenuItem.h"
#include "tests/designer/DesignerWindowFixture.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

TEST(RecentFiles, TheLatestComesFirstAndEachFileOnce) {
    const test::TempDir dir;
    TRecentFiles recent(dir.Path());
    EXPECT_TRUE(recent.Names().empty());
    recent.Add(dir.File(L"eins.dfm"));
    recent.Add(dir.File(L"Größe & Maß.dfm"));
    recent.Add(dir.File(L"EINS.dfm"));
    EXPECT_EQ(TRecentFiles(dir.Path()).Names(),
              (std::vector<String>{dir.File(L"EINS.dfm"), dir.File(L"Größe & Maß.dfm")}));
    recent.Remove(dir.File(L"eins.dfm"));
    EXPECT_EQ(recent.Names(), std::vector<String>{dir.File(L"Größe & Maß.dfm")});
}

TEST(RecentFiles, TheOldestIsGivenUpAndNamesBecomeFullOnes) {
    const test::TempDir dir;
    TRecentFiles recent(dir.Path());
    for (int i = 0; i < 12; ++i)
        recent.Add(dir.File(Format(L"%d.dfm", i)));
    EXPECT_EQ(recent.Names().size(), TRecentFiles::MaxCount);
    EXPECT_EQ(recent.Names().back(), dir.File(L"3.dfm"));
    recent.Add(L"hier.dfm");
    EXPECT_EQ(recent.Names().front().substr(1, 2), L":\\") << ToUtf8(recent.Names().front());
}

TEST(RecentFiles, AListThatCannotBeReadOrWrittenStopsNobody) {
    const test::TempDir dir;
    TRecentFiles recent(dir.Path() + L"\\none");
    recent.Add(dir.File(L"a.dfm"));
    EXPECT_TRUE(recent.Names().empty());
}

class RecentFilesMenuTest : public DesignerWindowTest {
protected:
    /// Opens the list in the menu by keys and chooses an entry of it.
    void ChooseRecent(WORD key) {
        const auto isOpen = [](int count) {
            return [count] {
                int menus = 0;
                for (HWND w = nullptr; (w = ::FindWindowExW(nullptr, w, MAKEINTATOM(32768), nullptr));)
                    if (::IsWindowVisible(w)) ++menus;
                return menus >= count;
            };
        };
        test::When(isOpen(1), [this] { Input.KeyPress('Z'); });
        test::When(isOpen(2), [this, key] { Input.KeyPress(key); });
        Input.Chord({VK_MENU}, 'D');
        test::PumpAll();
    }
};

TEST_F(RecentFilesMenuTest, OpensTheFileThatIsChosenInTheMenu) {
    Window->OpenFile(Dir.Write(L"eins.dfm", SampleFile));
    std::string other = SampleFile;
    other.replace(other.find("Fertig"), 6, "Zweite");
    Window->OpenFile(Dir.Write(L"zwei & drei.dfm", other));
    ChooseRecent('2');
    ASSERT_TRUE(test::PumpUntil([&] { return Window->File().Name() == Dir.File(L"eins.dfm"); }));
    EXPECT_TRUE(TextHas("Caption = 'Fertig'"));
    ChooseRecent('2');
    ASSERT_TRUE(test::PumpUntil([&] { return Window->File().Name() == Dir.File(L"zwei & drei.dfm"); }));
    EXPECT_TRUE(Answers.Errors.empty());
}

TEST_F(RecentFilesMenuTest, AFileThatIsGoneIsToldAndLeavesTheList) {
    const String gone = Dir.Write(L"weg.dfm", SampleFile);
    Window->OpenFile(gone);
    Window->OpenFile(Dir.Write(L"da.dfm", SampleFile));
    ::DeleteFileW(gone.c_str());
    ChooseRecent('2');
    ASSERT_TRUE(test::PumpUntil([&] { return !Answers.Errors.empty(); }));
    EXPECT_NE(Answers.Errors[0].find(L"weg.dfm“ gibt es nicht mehr"), String::npos)
        << ToUtf8(Answers.Errors[0]);
    EXPECT_EQ(Window->File().Name(), Dir.File(L"da.dfm"));
    EXPECT_EQ(TRecentFiles(Dir.Path() + L"\\kept").Names(), std::vector<String>{Dir.File(L"da.dfm")});
}

TEST_F(RecentFilesMenuTest, ASavedFileIsListed) {
    Answers.File = Dir.File(L"neu.dfm");
    Input.Chord({VK_CONTROL}, 'S');
    EXPECT_EQ(TRecentFiles(Dir.Path() + L"\\kept").Names(), std::vector<String>{Dir.File(L"neu.dfm")});
}

}  // namespace
}  // namespace designer
