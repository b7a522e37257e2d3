#include "platform/vcl/core/Streams.h"

#include <array>
#include <string>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/OsErrors.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/TempDir.h"
#include "tests/vcl/core/Probes.h"

namespace vcl {
namespace {

using probes::MessageOf;

/// Everything that stands in a stream, from its beginning.
std::string Contents(TStream& stream) {
    std::string text(static_cast<std::size_t>(stream.GetSize()), '\0');
    stream.SetPosition(0);
    stream.ReadBuffer(text.data(), text.size());
    return text;
}

void Write(TStream& stream, std::string_view text) {
    stream.WriteBuffer(text.data(), text.size());
}

class MemoryStreamTest : public test::LedgerTest {
protected:
    TMemoryStream FStream;
};

TEST_F(MemoryStreamTest, GrowsAsItIsWritten) {
    Write(FStream, "hello");
    Write(FStream, " world");
    EXPECT_EQ(FStream.GetSize(), 11);
    EXPECT_EQ(FStream.GetPosition(), 11);
    EXPECT_EQ(Contents(FStream), "hello world");
}

TEST_F(MemoryStreamTest, OverwritesInTheMiddle) {
    Write(FStream, "abcdef");
    FStream.SetPosition(4);
    Write(FStream, "XYZ");
    EXPECT_EQ(Contents(FStream), "abcdXYZ");
}

TEST_F(MemoryStreamTest, WritingBeyondTheEndLeavesZeros) {
    EXPECT_EQ(FStream.Seek(2, soEnd), 2);
    EXPECT_EQ(FStream.GetSize(), 0);
    Write(FStream, "x");
    EXPECT_EQ(Contents(FStream), std::string("\0\0x", 3));
}

TEST_F(MemoryStreamTest, ReadsNoFurtherThanItsEnd) {
    Write(FStream, "abc");
    FStream.SetPosition(1);
    std::array<char, 8> buffer{};
    EXPECT_EQ(FStream.Read(buffer.data(), buffer.size()), 2u);
    EXPECT_EQ(std::string(buffer.data()), "bc");
    EXPECT_EQ(FStream.Read(buffer.data(), 1), 0u);
    EXPECT_EQ(MessageOf<EReadError>([&] { FStream.ReadBuffer(buffer.data(), 1); }), L"Stream read error");
}

TEST_F(MemoryStreamTest, SeeksFromAllThreeOrigins) {
    Write(FStream, "abcdef");
    EXPECT_EQ(FStream.Seek(2, soBeginning), 2);
    EXPECT_EQ(FStream.Seek(1, soCurrent), 3);
    EXPECT_EQ(FStream.Seek(-1, soEnd), 5);
    EXPECT_THROW(FStream.Seek(-6, soCurrent), EStreamError);
    EXPECT_EQ(FStream.GetPosition(), 5);
}

TEST_F(MemoryStreamTest, CanBeCutOffAndCleared) {
    Write(FStream, "abcdef");
    FStream.SetSize(2);
    EXPECT_EQ(FStream.GetPosition(), 2);
    EXPECT_EQ(Contents(FStream), "ab");
    FStream.Clear();
    EXPECT_EQ(FStream.GetSize(), 0);
    EXPECT_TRUE(FStream.GetMemory().empty());
    EXPECT_THROW(FStream.SetSize(-1), EStreamError);
}

TEST_F(MemoryStreamTest, CopiesAPartOrAll) {
    TMemoryStream source;
    Write(source, "abcdef");
    source.SetPosition(2);
    EXPECT_EQ(FStream.CopyFrom(source, 3), 3);
    EXPECT_EQ(FStream.CopyFrom(source, 0), 6);
    EXPECT_EQ(Contents(FStream), "cdeabcdef");
    EXPECT_THROW(FStream.CopyFrom(source, 1), EReadError) << "the source stands at its end";
}

TEST_F(MemoryStreamTest, CopiesWhatIsLargerThanItsBuffer) {
    TMemoryStream source;
    const std::string text(100001, 'q');
    Write(source, text);
    EXPECT_EQ(FStream.CopyFrom(source, 0), 100001);
    EXPECT_EQ(Contents(FStream), text);
}

TEST_F(MemoryStreamTest, LoadsAndSavesWholeStreams) {
    TMemoryStream source;
    Write(source, "abc");
    Write(FStream, "longer than that");
    FStream.LoadFromStream(source);
    EXPECT_EQ(FStream.GetPosition(), 0);
    EXPECT_EQ(Contents(FStream), "abc");
    source.SetSize(0);
    FStream.SaveToStream(source);
    EXPECT_EQ(Contents(source), "abc");
    FStream.LoadFromStream(FStream);
    EXPECT_EQ(FStream.GetPosition(), 0);
    EXPECT_EQ(Contents(FStream), "abc");
}

class FileStreamTest : public test::LedgerTest {
protected:
    [[nodiscard]] String OpenError(const String& name, unsigned mode) const {
        return MessageOf<EFOpenError>([&] { TFileStream(name, mode); });
    }
    test::TempDir FDir;
};

TEST_F(FileStreamTest, WritesAFileThatCanBeReadAgain) {
    {
        TFileStream file(FDir.File(L"a.bin"), fmCreate);
        Write(file, "some text");
        EXPECT_EQ(Contents(file), "some text");
        EXPECT_EQ(file.GetFileName(), FDir.File(L"a.bin"));
    }
    EXPECT_EQ(FDir.Read(L"a.bin"), "some text");
    TFileStream file(FDir.File(L"a.bin"), fmOpenRead);
    EXPECT_EQ(Contents(file), "some text");
}

TEST_F(FileStreamTest, CreatingEmptiesAFileThatIsThere) {
    const String name = FDir.Write(L"a.bin", "old contents");
    { TFileStream file(name, fmCreate); }
    EXPECT_EQ(FDir.Read(L"a.bin"), "");
}

TEST_F(FileStreamTest, OpeningForWritingKeepsTheContents) {
    const String name = FDir.Write(L"a.bin", "old");
    {
        TFileStream file(name, fmOpenReadWrite);
        EXPECT_EQ(file.Seek(0, soEnd), 3);
        Write(file, "+new");
    }
    EXPECT_EQ(FDir.Read(L"a.bin"), "old+new");
}

TEST_F(FileStreamTest, CanBeCutOffAndGrown) {
    TFileStream file(FDir.Write(L"a.bin", "abcdef"), fmOpenReadWrite);
    file.SetPosition(6);
    file.SetSize(4);
    EXPECT_EQ(file.GetPosition(), 4);
    EXPECT_EQ(Contents(file), "abcd");
    file.SetPosition(1);
    file.SetSize(10);
    EXPECT_EQ(file.GetSize(), 10);
    EXPECT_EQ(file.GetPosition(), 1);
}

TEST_F(FileStreamTest, AMissingFileIsNamedWithTheReasonOfTheSystem) {
    const String name = FDir.File(L"missing.bin");
    EXPECT_EQ(OpenError(name, fmOpenRead),
              L"Cannot open file \"" + name + L"\". " + SysErrorMessage(ERROR_FILE_NOT_FOUND));
}

TEST_F(FileStreamTest, AFileThatCannotBeCreatedIsNamedToo) {
    const String name = FDir.File(L"no\\such\\folder.bin");
    EXPECT_EQ(MessageOf<EFCreateError>([&] { TFileStream(name, fmCreate); }),
              L"Cannot create file \"" + name + L"\". " + SysErrorMessage(ERROR_PATH_NOT_FOUND));
}

TEST_F(FileStreamTest, TheErrorNamesTheFullPath) {
    EXPECT_NE(OpenError(L"missing.bin", fmOpenRead).find(L":\\"), String::npos);
}

TEST_F(FileStreamTest, SharesAsItIsTold) {
    const String name = FDir.Write(L"a.bin", "text");
    {
        const TFileStream reading(name, fmOpenRead | fmShareDenyWrite);
        const TFileStream again(name, fmOpenRead | fmShareDenyWrite);
        EXPECT_NE(OpenError(name, fmOpenWrite | fmShareDenyNone), L"no error");
    }
    const TFileStream alone(name, fmOpenRead);
    EXPECT_NE(OpenError(name, fmOpenRead | fmShareDenyNone), L"no error")
        << "exclusive without a sharing mode";
}

TEST_F(FileStreamTest, AFileOpenedForReadingCannotBeWritten) {
    TFileStream file(FDir.Write(L"a.bin", "text"), fmOpenRead);
    EXPECT_EQ(MessageOf<EWriteError>([&] { Write(file, "x"); }), L"Stream write error");
    EXPECT_THROW(file.Seek(-1, soBeginning), EStreamError);
}

TEST_F(FileStreamTest, MemoryStreamsLoadAndSaveFiles) {
    TMemoryStream memory;
    memory.LoadFromFile(FDir.Write(L"a.bin", "abc"));
    EXPECT_EQ(Contents(memory), "abc");
    memory.SaveToFile(FDir.File(L"b.bin"));
    EXPECT_EQ(FDir.Read(L"b.bin"), "abc");
    EXPECT_THROW(memory.LoadFromFile(FDir.File(L"missing.bin")), EFOpenError);
}

}  // namespace
}  // namespace vcl
