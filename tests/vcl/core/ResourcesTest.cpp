#include "platform/vcl/core/Resources.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Object.h"
#include "platform/vcl/core/Streams.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/Probes.h"

namespace vcl {
namespace {

using probes::MessageOf;

/// Stands in this program, as its resources do.
void Here() {}

HINSTANCE ThisModule() {
    return ModuleOfAddress(reinterpret_cast<const void*>(&Here));
}

std::string TextOf(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

class ResourcesTest : public test::LedgerTest {};

TEST_F(ResourcesTest, AnAddressBelongsToItsModule) {
    EXPECT_EQ(ThisModule(), GetModuleHandleW(nullptr));
    EXPECT_EQ(ModuleOfAddress(
                  reinterpret_cast<const void*>(GetProcAddress(GetModuleHandleW(L"user32"), "IsWindow"))),
              GetModuleHandleW(L"user32"));
    EXPECT_EQ(ModuleOfAddress(nullptr), nullptr);
}

TEST_F(ResourcesTest, BytesAreReadByNameWithoutCase) {
    EXPECT_EQ(TextOf(FindResourceBytes(ThisModule(), L"TESTDATA", RT_RCDATA)), "raw bytes");
    EXPECT_EQ(TextOf(FindResourceBytes(ThisModule(), L"TestData", RT_RCDATA)), "raw bytes");
    EXPECT_TRUE(HasResource(ThisModule(), L"testdata", RT_RCDATA));
}

TEST_F(ResourcesTest, AMissingResourceIsNamed) {
    EXPECT_EQ(MessageOf<EResNotFound>([] { (void)FindResourceBytes(ThisModule(), L"NO_SUCH", RT_RCDATA); }),
              L"Resource NO_SUCH not found");
    EXPECT_FALSE(HasResource(ThisModule(), L"NO_SUCH", RT_RCDATA));
    EXPECT_FALSE(HasResource(ThisModule(), L"TESTDATA", RT_BITMAP)) << "of another type";
}

TEST_F(ResourcesTest, StringsAreReadByTheirNumber) {
    EXPECT_EQ(LoadResString(ThisModule(), 0), L"first of all");
    EXPECT_EQ(LoadResString(ThisModule(), 15), L"last of its block");
    EXPECT_EQ(LoadResString(ThisModule(), 16), L"first of its block");
    EXPECT_EQ(LoadResString(ThisModule(), 32767), L"greatest positive");
    EXPECT_EQ(LoadResString(ThisModule(), 40000), L"Wei\xDF");
    EXPECT_EQ(LoadResString(ThisModule(), 65521), L"zu l\xF6schendes Objekt");
    EXPECT_EQ(LoadResString(ThisModule(), 65535), L"last possible");
}

TEST_F(ResourcesTest, AMissingStringIsEmpty) {
    EXPECT_EQ(LoadResString(ThisModule(), 1), L"") << "a gap in a block";
    EXPECT_EQ(LoadResString(ThisModule(), 500), L"") << "a block that is not there";
    EXPECT_EQ(LoadResString(ThisModule(), 65536), L"") << "not the entry with number 0";
}

TEST_F(ResourcesTest, AStreamReadsAResource) {
    TResourceStream stream(ThisModule(), L"TESTDATA", RT_RCDATA);
    EXPECT_EQ(stream.GetSize(), 9);
    stream.SetPosition(4);
    std::string text(5, '\0');
    stream.ReadBuffer(text.data(), text.size());
    EXPECT_EQ(text, "bytes");
    EXPECT_THROW(TResourceStream(ThisModule(), L"NO_SUCH", RT_RCDATA), EResNotFound);
}

TEST_F(ResourcesTest, AResourceCannotBeWritten) {
    TResourceStream stream(ThisModule(), L"TESTDATA", RT_RCDATA);
    EXPECT_EQ(MessageOf<EStreamError>([&] { stream.Write("x", 1); }), L"The stream is read-only");
    EXPECT_EQ(MessageOf<EStreamError>([&] { stream.SetSize(0); }), L"The stream is read-only");
}

}  // namespace
}  // namespace vcl
