#pragma once

#include "platform/vcl/stdctrls/Panel.h"
#include "skin/Namespace.h"
#include "tests/support/FormTest.h"
#include "tests/support/SkinTesting.h"

namespace qv7skin::probes {

/// Fixture for controls of the foundation on a form of a known colour.
class ControlTest : public test::FormTest {
protected:
    static constexpr TColor FormColor = 0x00A0B0C0;

    void SetUp() override {
        FormTest::SetUp();
        Form().SetColor(FormColor);
    }
    /// A panel of one colour without bevels.
    TPanel* MakePanel(const TRect& bounds, TColor color, TWinControl* parent = nullptr) {
        auto* panel = Make<TPanel>(bounds, parent);
        panel->SetBevelOuter(bvNone);
        panel->SetColor(color);
        return panel;
    }
    /// What a control shows, after all pending paint messages.
    [[nodiscard]] static test::Pixels Shown(TWinControl& control) {
        test::PumpAll();
        return test::ReadClient(control.GetHandle());
    }
};

}  // namespace qv7skin::probes
