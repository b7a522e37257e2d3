// The host program of the tutorial, as its reader would try it.

#include <chrono>

#include "tests/support/EventGenerator.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/Program.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

class FirstFormTest : public test::LedgerTest {};

TEST_F(FirstFormTest, TheHostShowsItsFormAndAnswers) {
    constexpr std::chrono::seconds limit{20};
    const test::RunningProgram host(L"firstform.exe", {});
    ASSERT_TRUE(test::PumpUntil([&] { return host.Window(L"TFirstForm", L"Das erste Formular"); }, limit));
    EXPECT_TRUE(host.Window(L"TEdit"));
    EXPECT_TRUE(host.Window(L"TQV7SkinButton"));

    test::EventGenerator input;
    input.Type(L"Ada");
    input.KeyPress(VK_RETURN);  // the default button
    ASSERT_TRUE(test::PumpUntil([&] { return host.Window(L"TFirstForm", L"Guten Tag, Ada!"); }, limit));

    ::PostMessageW(host.Window(L"TFirstForm"), WM_CLOSE, 0, 0);
    EXPECT_TRUE(test::PumpUntil([&] { return host.HasEndedWith(0); }, limit));
}

}  // namespace
}  // namespace designer
