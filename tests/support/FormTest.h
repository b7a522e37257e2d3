#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Form.h"
#include "tests/support/EventGenerator.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/Pump.h"

namespace test {

/// Fixture for tests on a form: messages go through the application's loop as in a program, errors that
/// escape handlers are collected in `Errors` (and fail the test unless it takes them out), and everything
/// that the test made must be gone afterwards.
class FormTest : public LedgerTest {
protected:
    FormTest();
    ~FormTest() override;
    void SetUp() override;
    void TearDown() override;

    /// The form of the test: 400 x 300 pixels of client area at (100, 100), without a frame, made and shown
    /// on first use, so that client pixels are easy to reckon with. Freed at the end.
    vcl::TForm& Form();
    /// A control of the class with these bounds on `parent` (the form of the test when null), which frees it.
    template <class Control>
    Control* Make(const vcl::TRect& bounds, vcl::TWinControl* parent = nullptr) {
        auto* control = new Control(nullptr);
        control->SetBoundsRect(bounds);
        control->SetParent(parent ? parent : &Form());
        return control;
    }

    EventGenerator Input;
    std::vector<std::string>
        Errors;  ///< "EAssertionFailed: text" of each error that reached the application.

private:
    class ApplicationLoop;
    void NoteError(vcl::TObject* sender, const std::exception& error);
    std::unique_ptr<ApplicationLoop> FLoop;
    std::unique_ptr<vcl::TForm> FForm;
};

}  // namespace test
