#include "tests/support/FormTest.h"

namespace test {

class FormTest::ApplicationLoop final : public MessageLoop {
public:
    void Handle(MSG& message) override { vcl::Application().HandleMessage(message); }
    void Idle() override { vcl::Application().DoIdle(); }
};

FormTest::FormTest() = default;
FormTest::~FormTest() = default;

void FormTest::SetUp() {
    LedgerTest::SetUp();
    FLoop = std::make_unique<ApplicationLoop>();
    vcl::Application().OnException = {this, &FormTest::NoteError};
    Input.MoveAway();
}

void FormTest::TearDown() {
    FForm.reset();
    EXPECT_EQ(Errors, std::vector<std::string>()) << "errors that escaped from handlers";
    PumpAll();
    // What the pointer was on is gone.
    vcl::Application().CancelHint();
    vcl::Application().DoIdle();
    vcl::Application().OnException.Clear();
    FLoop.reset();
    LedgerTest::TearDown();
}

vcl::TForm& FormTest::Form() {
    if (!FForm) {
        FForm = std::make_unique<vcl::TForm>(nullptr);
        FForm->SetBorderStyle(vcl::bsNone);
        FForm->SetBounds(100, 100, 400, 300);
        FForm->Show();
        PumpAll();
    }
    return *FForm;
}

void FormTest::NoteError(vcl::TObject*, const std::exception& error) {
    const auto* own = dynamic_cast<const vcl::Exception*>(&error);
    const std::string name = own ? vcl::ToUtf8(own->ClassName()) : "std::exception";
    Errors.push_back(name + ": " + error.what());
}

}  // namespace test
