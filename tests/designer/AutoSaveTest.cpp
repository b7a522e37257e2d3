#include "designer/files/AutoSave.h"

#include <thread>

#include "designer/files/SafeFile.h"
#include "platform/vcl/core/Exceptions.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/TempDir.h"

namespace designer {
namespace {

class AutoSaveTest : public test::LedgerTest {
protected:
    [[nodiscard]] std::size_t FileCount() const {
        std::size_t count = 0;
        WIN32_FIND_DATAW found{};
        const HANDLE search = ::FindFirstFileW((Dir.Path() + L"\\*.*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) return 0;
        do
            if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) ++count;
        while (::FindNextFileW(search, &found));
        ::FindClose(search);
        return count;
    }
    test::TempDir Dir;
};

TEST_F(AutoSaveTest, AGoodEndLeavesNothing) {
    {
        TAutoSave save(Dir.Path());
        save.Keep(L"C:\\form.dfm", "object Form1: TForm1\r\nend\r\n");
        EXPECT_EQ(FileCount(), 2u) << "the work and the lock";
    }
    EXPECT_EQ(FileCount(), 0u);
}

TEST_F(AutoSaveTest, TheWorkOfALivingProgramIsNotTaken) {
    TAutoSave first(Dir.Path());
    first.Keep(L"C:\\form.dfm", "text");
    TAutoSave second(Dir.Path());
    EXPECT_TRUE(second.LeftWork().empty());
    EXPECT_TRUE(first.LeftWork().empty()) << "nor its own";
}

TEST_F(AutoSaveTest, WorkWithoutALockIsOfferedTheLatestFirst) {
    test::AgeFile(Dir.Write(L"1-a.arbeit", "C:\\Grüße.dfm\nobject A: TA\r\nend\r\n"));
    Dir.Write(L"2-b.arbeit", "\nobject B: TB\r\nend\r\n");
    TAutoSave save(Dir.Path());
    auto left = save.LeftWork();
    ASSERT_EQ(left.size(), 2u);
    EXPECT_EQ(left[0].FileName, L"");
    EXPECT_EQ(left[0].Text, "object B: TB\r\nend\r\n");
    EXPECT_EQ(left[1].FileName, FromUtf8("C:\\Grüße.dfm"));
    EXPECT_EQ(left[1].Text, "object A: TA\r\nend\r\n");
    EXPECT_GE(left[0].SavedAt, left[1].SavedAt);
    EXPECT_TRUE(save.LeftWork().empty()) << "as long as somebody thinks about it";
    TAutoSave::Forget(left[1]);
    left.clear();
    left = save.LeftWork();
    ASSERT_EQ(left.size(), 1u) << "what was not forgotten is offered again";
    EXPECT_EQ(left[0].FileName, L"");
}

TEST_F(AutoSaveTest, MakesItsFolder) {
    TAutoSave save(Dir.Path() + L"\\a\\b");
    save.Keep(L"", "text");
    EXPECT_NE(FileTimeOf(Dir.Path() + L"\\a"), 0u);
}

TEST_F(AutoSaveTest, AFileIsReplacedWhole) {
    const String file = Dir.Write(L"form.dfm", "old");
    WriteFileSafely(file, "new text");
    EXPECT_EQ(Dir.Read(L"form.dfm"), "new text");
    EXPECT_EQ(ReadWholeFile(file), "new text");
    EXPECT_EQ(FileCount(), 1u) << "nothing stays beside it";
}

TEST_F(AutoSaveTest, WhoReadsAFileForAMomentDoesNotHinder) {
    const String file = Dir.Write(L"form.dfm", "old");
    const HANDLE open =
        ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(open, INVALID_HANDLE_VALUE);
    const String beside = file + L".neu";
    std::thread reader([&] {
        while (FileTimeOf(beside) == 0)
            std::this_thread::yield();
        ::CloseHandle(open);
    });
    EXPECT_NO_THROW(WriteFileSafely(file, "new"));
    reader.join();
    EXPECT_EQ(Dir.Read(L"form.dfm"), "new");
}

TEST_F(AutoSaveTest, AFileThatCannotBeReplacedStays) {
    const String file = Dir.Write(L"form.dfm", "old");
    const HANDLE open =
        ::CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(open, INVALID_HANDLE_VALUE);
    EXPECT_THROW(WriteFileSafely(file, "new"), EWriteError);
    ::CloseHandle(open);
    EXPECT_EQ(Dir.Read(L"form.dfm"), "old");
    EXPECT_EQ(FileCount(), 1u);
    EXPECT_THROW(WriteFileSafely(Dir.Path() + L"\\nowhere\\form.dfm", "x"), EFCreateError);
    EXPECT_THROW((void)ReadWholeFile(Dir.Path() + L"\\none.dfm"), EFOpenError);
}

}  // namespace
}  // namespace designer
