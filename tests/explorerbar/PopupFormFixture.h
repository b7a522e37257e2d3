#pragma once

#include "explorerbar/UnitQV7SkinPopupForm.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace qv7skin::probes {

/// Fixture for popup forms: a form with a control to open them at, and a second form to go to.
class PopupFormTest : public test::FormTest {
protected:
    void TearDown() override {
        FOther.reset();
        FormTest::TearDown();
    }
    /// A control of the form at (20, 30), 120 x 25 pixels.
    TPanel& Anchor() {
        if (!FAnchor) FAnchor = Make<TPanel>(TRect::OfSize(20, 30, 120, 25));
        return *FAnchor;
    }
    /// A popup that belongs to the form, which frees it.
    TQV7SkinPopupForm& Popup() {
        if (!FPopup) FPopup = new TQV7SkinPopupForm(&Form());
        return *FPopup;
    }
    /// Another top-level form, shown at (600, 100) without taking the activation away.
    TForm& Other() {
        if (!FOther) {
            FOther = std::make_unique<TForm>(nullptr);
            FOther->SetBorderStyle(bsNone);
            FOther->SetBounds(600, 100, 200, 200);
            FOther->Show();
            Form().SetFocus();
            ::SetActiveWindow(Form().GetHandle());
            test::PumpAll();
        }
        return *FOther;
    }
    void Open() {
        Popup().ShowAtControl(&Anchor());
        test::PumpAll();
    }
    [[nodiscard]] TPoint AnchorBelow() { return Anchor().ClientToScreen({0, Anchor().GetHeight()}); }

private:
    TPanel* FAnchor = nullptr;
    TQV7SkinPopupForm* FPopup = nullptr;
    std::unique_ptr<TForm> FOther;
};

}  // namespace qv7skin::probes
