#include "explorerbar/items/SpareEvent.h"

#include <memory>
#include <string>

#include "tests/support/LedgerTest.h"

namespace qv7skin {
namespace {

using TProbeEvent = TSpareEvent<void(int)>;

class SpareEventTest : public test::LedgerTest {
public:
    void Note(int value) { Log += std::to_string(value); }

protected:
    std::string Log;
};

TEST_F(SpareEventTest, AnEmptyOneTakesTheRoomOfAPointerAndRaisesNothing) {
    TProbeEvent event;
    EXPECT_EQ(sizeof event, sizeof(void*));
    EXPECT_FALSE(event);
    EXPECT_FALSE(event.IsAssigned());
    EXPECT_FALSE(event.Get());
    event(1);
}

TEST_F(SpareEventTest, MethodsAndCallablesAreBoundAsToOtherEvents) {
    TProbeEvent event;
    event = {this, &SpareEventTest::Note};
    event(1);
    EXPECT_EQ(event.Get().ObjectPart(), dynamic_cast<void*>(this));
    event = [this](int value) { Log += '(' + std::to_string(value) + ')'; };
    event(2);
    EXPECT_EQ(Log, "1(2)");
    event = nullptr;
    EXPECT_FALSE(event);
    event(3);
    EXPECT_EQ(Log, "1(2)");
}

TEST_F(SpareEventTest, ItsHandlerMayBindItAnewOrFreeIt) {
    auto event = std::make_unique<TProbeEvent>();
    *event = [&](int) {
        *event = {this, &SpareEventTest::Note};
        Log += 'a';
    };
    (*event)(1);
    (*event)(2);
    EXPECT_EQ(Log, "a2");
    *event = [&](int) {
        event.reset();
        Log += 'f';
    };
    (*event)(3);
    EXPECT_EQ(Log, "a2f");
}

}  // namespace
}  // namespace qv7skin
