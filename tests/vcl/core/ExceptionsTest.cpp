#include "platform/vcl/core/Exceptions.h"

#include "platform/vcl/core/OsErrors.h"
#include "platform/vcl/core/WindowsApi.h"
#include "tests/support/LedgerTest.h"

namespace vcl {
namespace {

TEST(ExceptionsTest, CarryAWideTextAndItsUtf8) {
    const Exception error(L"Wei\xDF");
    EXPECT_EQ(error.Message(), L"Wei\xDF");
    EXPECT_STREQ(error.what(), "Wei\xC3\x9F");
    EXPECT_STREQ(error.ClassName(), L"Exception");
}

TEST(ExceptionsTest, NameTheirClassThroughTheBase) {
    try {
        throw EFOpenError(L"text");
    } catch (const Exception& error) {
        EXPECT_STREQ(error.ClassName(), L"EFOpenError");
    }
}

TEST(ExceptionsTest, StreamAndFilerErrorsAreStreamErrors) {
    EXPECT_THROW(throw EFCreateError(L""), EStreamError);
    EXPECT_THROW(throw EReadError(L""), EStreamError);
    EXPECT_THROW(throw EWriteError(L""), EStreamError);
    EXPECT_THROW(throw EClassNotFound(L""), EFilerError);
}

TEST(ExceptionsTest, AbortRaisesEAbort) {
    EXPECT_THROW(Abort(), EAbort);
}

String AssertText(const wchar_t* message) {
    try {
        Assert(false, message, L"Common/Unit", 319);
    } catch (const EAssertionFailed& error) {
        return error.Message();
    }
    return L"nothing raised";
}

TEST(ExceptionsTest, AssertNamesMessageSourceAndLine) {
    EXPECT_EQ(AssertText(L"Set it first"), L"Set it first (Common/Unit, line 319)");
    EXPECT_EQ(AssertText(L""), L"Assertion failed (Common/Unit, line 319)");
    EXPECT_EQ(AssertText(nullptr), L"Assertion failed (Common/Unit, line 319)");
}

TEST(ExceptionsTest, AssertTakesTextsWithPercentSigns) {
    EXPECT_EQ(AssertText(L"100% %s"), L"100% %s (Common/Unit, line 319)");
}

TEST(ExceptionsTest, AssertIsSilentWhenTheConditionHolds) {
    EXPECT_NO_THROW(Assert(true, L"never", L"Unit", 1));
}

TEST(ExceptionsTest, SystemErrorsCarryCodeAndTextOfTheSystem) {
    const String reason = SysErrorMessage(ERROR_FILE_NOT_FOUND);
    ASSERT_FALSE(reason.empty());
    EXPECT_GT(reason.back(), L' ') << "the line break at the end is cut off";
    SetLastError(ERROR_FILE_NOT_FOUND);
    try {
        Win32Check(false);
        FAIL() << "nothing was raised";
    } catch (const EOSError& error) {
        EXPECT_EQ(error.Message(), L"System Error.  Code: 2.\r\n" + reason);
    }
    EXPECT_NO_THROW(Win32Check(true));
}

}  // namespace
}  // namespace vcl
