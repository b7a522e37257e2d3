#include <memory>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/stdctrls/Button.h"
#include "tests/support/FormTest.h"

namespace test {
namespace {

using namespace vcl;

class FormLifeTest : public FormTest {
protected:
    std::unique_ptr<TForm> NewForm() {
        auto form = std::make_unique<TForm>(nullptr);
        form->SetBounds(150, 150, 200, 150);
        return form;
    }
    std::vector<std::string> Log;
    TNotifyEvent Note(const char* name) {
        return [this, name](TObject*) { Log.emplace_back(name); };
    }
};

TEST_F(FormLifeTest, ShowingMakesTheWindowAndHidingKeepsIt) {
    const auto form = NewForm();
    EXPECT_FALSE(form->HandleAllocated());
    form->Show();
    ASSERT_TRUE(form->HandleAllocated());
    EXPECT_TRUE(IsWindowVisible(form->WindowHandle()));
    form->Hide();
    EXPECT_TRUE(form->HandleAllocated());
    EXPECT_FALSE(IsWindowVisible(form->WindowHandle()));
}

TEST_F(FormLifeTest, EventsOfALifeComeInOrder) {
    auto form = NewForm();
    form->OnCreate = Note("create");
    form->OnShow = Note("show");
    form->OnActivate = Note("activate");
    form->OnDeactivate = Note("deactivate");
    form->OnHide = Note("hide");
    form->OnDestroy = Note("destroy");
    form->OnClose = [this](TObject*, TCloseAction&) { Log.emplace_back("close"); };
    form->OnCloseQuery = [this](TObject*, bool&) { Log.emplace_back("query"); };
    form->Show();
    PumpAll();
    form->Close();
    PumpAll();
    form.release()->Free();
    EXPECT_EQ(Log,
              (std::vector<std::string>{"create", "show", "activate", "query", "close", "hide", "destroy"}));
}

TEST_F(FormLifeTest, AHundredFormsLeaveNothingBehind) {
    for (int i = 0; i < 100; ++i) {
        const auto form = NewForm();
        auto* button = new TButton(form.get());
        button->SetParent(form.get());
        form->Show();
        PumpAll();
        form->Close();
    }
    EXPECT_EQ(Leaks(), "");
}

TEST_F(FormLifeTest, AModalFormReturnsTheResultOfItsButton) {
    Form();
    const auto form = NewForm();
    auto* button = new TButton(form.get());
    button->SetParent(form.get());
    button->SetModalResult(mrYes);
    When([&] { return form->GetActive(); }, [&] { Input.ClickAt(button->WindowHandle(), 5, 5); });
    EXPECT_EQ(form->ShowModal(), mrYes);
    EXPECT_FALSE(form->GetVisible());
    EXPECT_TRUE(Form().GetActive());
}

}  // namespace
}  // namespace test
