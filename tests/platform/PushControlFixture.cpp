#include "tests/platform/PushControlFixture.h"

namespace test {

void PushControlTest::SetUp() {
    FormTest::SetUp();
    Control = Make<ProbeControl>({50, 40, 130, 64});
    Control->OnClick = [this](vcl::TObject*) { ++Clicks; };
    Form().SetActiveControl(nullptr);
    PumpAll();
}

vcl::TColor PushControlTest::Shown(int x, int y) const {
    return ReadClient(Window()).At(x, y);
}

}  // namespace test
