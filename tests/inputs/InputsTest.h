#pragma once

#include <memory>

#include "inputs/Namespace.h"
#include "platform/vcl/core/DateFormats.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace qv7skin::probes {

/// Fixture for inputs: controls made in code get their inner controls as after loading.
class InputsTest : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Form();
    }
    void TearDown() override {
        FOther.reset();
        FormTest::TearDown();
    }
    /// Another top-level form at (600, 100).
    TForm& Other() {
        if (!FOther) {
            FOther = std::make_unique<TForm>(nullptr);
            FOther->SetBorderStyle(bsNone);
            FOther->SetBounds(600, 100, 200, 200);
            FOther->Show();
            ::SetActiveWindow(Form().GetHandle());
            test::PumpAll();
        }
        return *FOther;
    }
    static test::Pixels Shown(TWinControl& control) {
        test::PumpAll();
        return test::ReadClient(control.GetHandle());
    }

private:
    std::unique_ptr<TForm> FOther;
};

/// German dates for the length of a test, whatever the system's locale.
class GermanDates {
public:
    GermanDates() : FBefore(FormatSettings()) {
        TFormatSettings& settings = FormatSettings();
        settings.DateSeparator = L'.';
        settings.ShortDateFormat = L"dd.mm.yyyy";
        settings.ShortDayNames = {L"So", L"Mo", L"Di", L"Mi", L"Do", L"Fr", L"Sa"};
    }
    ~GermanDates() { FormatSettings() = FBefore; }
    GermanDates(const GermanDates&) = delete;
    GermanDates& operator=(const GermanDates&) = delete;

private:
    TFormatSettings FBefore;
};

}  // namespace qv7skin::probes
