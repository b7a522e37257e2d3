#include "tests/vcl/controls/ControlsTest.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"

namespace test {
namespace {

/// A message loop as programs have it: controls are offered key messages first.
class KeyOfferingLoop : public MessageLoop {
public:
    void Handle(MSG& message) override {
        if (OfferKeyMessage(message)) return;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
};

}  // namespace

void TProbeWindow::Dispatch(TMessage& message) {
    if (MessageHook) {
        const TLifeGuard guard(*this);
        MessageHook(message);
        if (!guard.IsAlive() || message.Msg == WM_NULL) return;
    }
    TCustomControl::Dispatch(message);
}

void TProbeWindow::Paint() {
    ++Paints;
    GetCanvas().GetBrush().SetColor(GetColor());
    GetCanvas().FillRect(GetClientRect());
    if (PaintHook) PaintHook();
}

void TProbeWindow::Resize() {
    ++Resizes;
    TCustomControl::Resize();
}

void TProbeGraphic::Paint() {
    ++Paints;
    GetCanvas().GetBrush().SetColor(GetColor());
    GetCanvas().FillRect(GetClientRect());
    if (PaintHook) PaintHook();
}

void TProbeGraphic::Resize() {
    ++Resizes;
    TGraphicControl::Resize();
}

TProbeForm::TProbeForm(TComponent* AOwner) : TProbeWindow(AOwner) {
    ControlStyle.Include(csAcceptsControls);
}

TProbeForm::~TProbeForm() {
    FActive = nullptr;
}

void TProbeForm::FocusControl(TWinControl* control) {
    if (!control->CanFocus()) throw EInvalidOperation(L"Cannot focus a disabled or invisible window");
    ::SetFocus(control->GetHandle());
}

void TProbeForm::DefocusControl(TWinControl* control, bool removing) {
    if (!FActive || !control->ContainsControl(FActive)) return;
    if (removing)
        FActive = nullptr;
    else
        ::SetFocus(GetHandle());
}

bool TProbeForm::SetFocusedControl(TWinControl* control) {
    TWinControl* former = FActive;
    if (former == control) return true;
    FActive = control;
    if (former && former != this) former->Perform(CM_EXIT);
    if (FActive == control && control != this) control->Perform(CM_ENTER);
    if (FActive == control) Perform(CM_FOCUSCHANGED, 0, control);
    return FActive == control;
}

bool TProbeForm::PreviewKey(TMessage& message) {
    if (message.Msg == WM_KEYDOWN) return DoKeyDown(message);
    if (message.Msg == WM_CHAR) return DoKeyPress(message);
    return message.Msg == WM_KEYUP && DoKeyUp(message);
}

bool TProbeForm::IsDesignMsg(TControl*, TMessage& message) {
    DesignMessages.push_back(message.Msg);
    return message.Msg == WM_LBUTTONDOWN || message.Msg == WM_LBUTTONUP;
}

void TProbeServices::HandleException(std::exception_ptr error) {
    try {
        std::rethrow_exception(error);
    } catch (const Exception& e) {
        Errors.push_back(e.Message());
    }
}

void ControlsTest::SetUp() {
    LedgerTest::SetUp();
    FFormerServices = SetAppServices(&Services);
    FLoop = std::make_unique<KeyOfferingLoop>();
    Top = new TestWindow({100, 100, 500, 400});
    Form = new TProbeForm(nullptr);
    Form->SetBounds(0, 0, 400, 300);
    Form->SetParentWindow(Top->Handle());
    PumpAll();
}

void ControlsTest::TearDown() {
    if (Form) Form->Free();
    delete Top;
    FLoop.reset();
    SetAppServices(FFormerServices);
    for (const String& error : Services.Errors)
        ADD_FAILURE() << "escaped from a handler: " << ToUtf8(error);
    PumpAll();
    LedgerTest::TearDown();
}

}  // namespace test
