#pragma once

#include <gtest/gtest.h>

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/vcl/controls/AppServices.h"
#include "platform/vcl/controls/CustomControl.h"
#include "platform/vcl/controls/GraphicControl.h"
#include "platform/vcl/controls/ParentForm.h"
#include "tests/support/EventGenerator.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/Pump.h"
#include "tests/support/TestWindow.h"

namespace test {

using namespace vcl;

/// Counts what happens to it and paints itself in its colour.
class TProbeWindow : public TCustomControl {
public:
    using TCustomControl::TCustomControl;
    std::function<void()> PaintHook;
    /// Sees each message first; it keeps one for itself by making it WM_NULL.
    std::function<void(TMessage&)> MessageHook;
    int Paints = 0;
    int Resizes = 0;
    using TCustomControl::AdjustSize;
    using TCustomControl::DefaultHandler;
    using TWinControl::CreateSubClass;
    using TWinControl::DestroyHandle;

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;
    void Resize() override;
};

/// The same without a window.
class TProbeGraphic : public TGraphicControl {
public:
    using TGraphicControl::TGraphicControl;
    std::function<void()> PaintHook;
    int Paints = 0;
    int Resizes = 0;

protected:
    void Paint() override;
    void Resize() override;
};

/// The least that a form does for its controls: moves the focus and tells about it.
class TProbeForm : public TProbeWindow, public TParentForm, public TDesignHook {
public:
    explicit TProbeForm(TComponent* AOwner);
    ~TProbeForm() override;
    [[nodiscard]] TParentForm* AsParentForm() override { return this; }
    [[nodiscard]] TWinControl& FormControl() override { return *this; }
    [[nodiscard]] TWinControl* GetActiveControl() const override { return FActive; }
    void SetActiveControl(TWinControl* control) override { FocusControl(control); }
    void FocusControl(TWinControl* control) override;
    void DefocusControl(TWinControl* control, bool removing) override;
    bool SetFocusedControl(TWinControl* control) override;
    [[nodiscard]] bool GetKeyPreview() const override { return KeyPreview; }
    bool PreviewKey(TMessage& message) override;
    bool WantChildKey(TWinControl*, TMessage&) override { return false; }
    bool IsShortCut(TMessage& message) override { return ShortCut && message.CharCode() == ShortCut; }
    void SetModalResult(TModalResult value) override { FModalResult = value; }
    [[nodiscard]] TModalResult GetModalResult() const override { return FModalResult; }
    [[nodiscard]] TDesignHook* GetDesignHook() const override { return const_cast<TProbeForm*>(this); }
    [[nodiscard]] bool GetActive() const override { return true; }
    bool IsDesignMsg(TControl* sender, TMessage& message) override;
    void Modified() override {}

    bool KeyPreview = false;
    WORD ShortCut = 0;
    std::vector<UINT> DesignMessages;

private:
    TWinControl* FActive = nullptr;
    TModalResult FModalResult = mrNone;
};

/// Collects what escapes from handlers instead of showing it.
class TProbeServices : public TAppServices {
public:
    void HandleException(std::exception_ptr error) override;
    [[nodiscard]] TCursor ScreenCursor() const override { return Cursor; }
    std::vector<String> Errors;
    TCursor Cursor = crDefault;
};

/// Every test of controls has a top-level window of the system with a form in it, 400 x 300 pixels, and key
/// messages that go through the controls before they are dispatched.
class ControlsTest : public LedgerTest {
protected:
    void SetUp() override;
    void TearDown() override;

    /// A control of the class on `parent` (the form when null).
    template <class T>
    T* Make(const TRect& bounds, TWinControl* parent = nullptr) {
        auto* control = new T(nullptr);
        control->SetBoundsRect(bounds);
        control->SetParent(parent ? parent : Form);
        return control;
    }

    TestWindow* Top = nullptr;
    TProbeForm* Form = nullptr;
    TProbeServices Services;
    EventGenerator Input;

private:
    TAppServices* FFormerServices = nullptr;
    std::unique_ptr<MessageLoop> FLoop;
};

/// Notes the names of what happens, for tests about order.
using Log = std::vector<std::string>;

}  // namespace test
