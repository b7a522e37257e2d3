#include <memory>

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Button.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace vcl;
using Log = std::vector<std::string>;

class FormLifeTest : public FormTest {
protected:
    std::unique_ptr<TForm> NewForm() {
        auto form = std::make_unique<TForm>(nullptr);
        form->SetBounds(150, 150, 200, 150);
        return form;
    }
    TNotifyEvent Note(const char* name) {
        return [this, name](TObject*) { Events.emplace_back(name); };
    }
    Log Events;
};

/// A form with handlers of its own.
class TNotingForm : public TForm {
public:
    explicit TNotingForm(Log& log) : TForm(nullptr), FLog(log) {
        OnCreate = {this, &TNotingForm::Created};
        OnDestroy = {this, &TNotingForm::Destroyed};
    }

private:
    void Created(TObject*) { FLog.emplace_back("create"); }
    void Destroyed(TObject*) { FLog.emplace_back("destroy"); }
    Log& FLog;
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
    form->OnHide = Note("hide");
    form->OnDestroy = Note("destroy");
    form->OnClose = [this](TObject*, TCloseAction&) { Events.emplace_back("close"); };
    form->OnCloseQuery = [this](TObject*, bool&) { Events.emplace_back("query"); };
    form->Show();
    PumpAll();
    form->Close();
    PumpAll();
    form.release()->Free();
    EXPECT_EQ(Events, (Log{"create", "show", "activate", "query", "close", "hide", "destroy"}));
}

TEST_F(FormLifeTest, OnCreateIsRaisedOnceForAll) {
    const auto form = NewForm();
    form->OnCreate = Note("create");
    form->EnsureCreated();
    form->Show();
    form->Hide();
    form->Show();
    EXPECT_EQ(Events, Log{"create"});
}

TEST_F(FormLifeTest, OnDestroyFindsTheFormWhole) {
    (new TNotingForm(Events))->Free();
    EXPECT_EQ(Events, Log{"destroy"});
    Events.clear();
    // A plain delete has passed the destructor of the handler's own class already.
    delete new TNotingForm(Events);
    EXPECT_EQ(Events, Log());
    const auto form = NewForm();
    form->OnDestroy = Note("other object");
    delete new TNotingForm(Events);
    EXPECT_EQ(Events, Log());
}

TEST_F(FormLifeTest, OnDestroyOfAnotherObjectIsRaisedByDeleteToo) {
    NewForm()->OnDestroy = Note("destroy");
    EXPECT_EQ(Events, Log{"destroy"});
}

TEST_F(FormLifeTest, CloseActionsDecideWhatHappens) {
    auto form = NewForm();
    TCloseAction action = caNone;
    form->OnClose = [&](TObject*, TCloseAction& wanted) {
        EXPECT_EQ(wanted, caHide);
        wanted = action;
    };
    form->Show();
    form->Close();
    EXPECT_TRUE(form->GetVisible());
    action = caMinimize;
    form->Close();
    EXPECT_EQ(form->GetWindowState(), wsMinimized);
    form->SetWindowState(wsNormal);
    action = caHide;
    form->Close();
    EXPECT_FALSE(form->GetVisible());
    form->Show();
    action = caFree;
    bool destroyed = false;
    form->OnDestroy = [&](TObject*) { destroyed = true; };
    form.release()->Close();
    EXPECT_FALSE(destroyed);
    EXPECT_TRUE(PumpUntil([&] { return destroyed; }));
}

TEST_F(FormLifeTest, ARefusedQueryKeepsTheFormOpen) {
    const auto form = NewForm();
    form->OnCloseQuery = [](TObject*, bool& canClose) { canClose = false; };
    form->OnClose = [this](TObject*, TCloseAction&) { Events.emplace_back("close"); };
    form->Show();
    form->Close();
    EXPECT_TRUE(form->GetVisible());
    EXPECT_EQ(Events, Log());
}

TEST_F(FormLifeTest, CloseInsideCloseDoesNothing) {
    const auto form = NewForm();
    form->OnClose = [&](TObject*, TCloseAction&) {
        Events.emplace_back("close");
        form->Close();
    };
    form->OnDeactivate = [&](TObject*) { form->Close(); };
    Form();
    form->Show();
    PumpAll();
    form->Close();
    EXPECT_EQ(Events, Log{"close"});
    EXPECT_FALSE(form->GetVisible());
}

TEST_F(FormLifeTest, AFormMayBeFreedInItsOwnEvents) {
    const auto tryEvent = [&](const std::function<void(TForm&)>& bind) {
        auto* form = new TForm(nullptr);
        form->SetBounds(150, 150, 200, 150);
        bool destroyed = false;
        form->OnDestroy = [&](TObject*) { destroyed = true; };
        bind(*form);
        form->Show();
        PumpAll();
        if (!destroyed) Input.ClickAt(form->WindowHandle(), 50, 50);
        if (!destroyed) Input.KeyPress('A');
        if (!destroyed) form->Close();
        EXPECT_TRUE(destroyed);
        if (!destroyed) form->Free();
    };
    const TNotifyEvent freeIt = [](TObject* sender) { static_cast<TForm*>(sender)->Free(); };
    tryEvent([&](TForm& form) { form.OnActivate = freeIt; });
    tryEvent([&](TForm& form) { form.OnShow = freeIt; });
    tryEvent([&](TForm& form) { form.OnHide = freeIt; });
    tryEvent([&](TForm& form) { form.OnClick = freeIt; });
    tryEvent([&](TForm& form) { form.OnPaint = freeIt; });
    tryEvent([&](TForm& form) { form.OnResize = freeIt; });
    tryEvent([&](TForm& form) { form.OnKeyDown = [&](TObject*, WORD&, TShiftState) { form.Free(); }; });
    tryEvent([&](TForm& form) { form.OnCloseQuery = [&](TObject*, bool&) { form.Free(); }; });
    tryEvent([&](TForm& form) { form.OnClose = [&](TObject*, TCloseAction&) { form.Free(); }; });
    tryEvent([&](TForm& form) {
        auto* button = Make<TButton>({20, 20, 90, 60}, &form);
        button->OnClick = [&](TObject*) { form.Free(); };
    });
}

TEST_F(FormLifeTest, ReleaseFreesAfterTheMessageUnderWay) {
    auto* form = NewForm().release();
    bool destroyed = false;
    bool destroyedInside = true;
    form->OnDestroy = [&](TObject*) { destroyed = true; };
    form->OnClick = [&](TObject*) {
        form->Release();
        form->Release();
        destroyedInside = destroyed;
    };
    form->Show();
    Input.ClickAt(form->WindowHandle(), 50, 50);
    EXPECT_TRUE(PumpUntil([&] { return destroyed; }));
    EXPECT_FALSE(destroyedInside);
}

TEST_F(FormLifeTest, AReleasedFormMayBeFreedBefore) {
    auto form = NewForm();
    form->Release();
    form.reset();
    PumpAll();
    EXPECT_EQ(Leaks(), "");
}

TEST_F(FormLifeTest, VisibleCannotChangeWhileBeingShown) {
    const auto form = NewForm();
    form->OnShow = [&](TObject*) { form->Hide(); };
    form->Show();
    ASSERT_EQ(Errors.size(), 1U);
    EXPECT_EQ(Errors[0], "EInvalidOperation: Cannot change Visible in OnShow or OnHide");
    Errors.clear();
}

TEST_F(FormLifeTest, OnPaintDrawsOnTheCanvas) {
    Form().SetColor(clWhite);
    Form().OnPaint = [&](TObject*) {
        Form().GetCanvas().GetBrush().SetColor(clRed);
        Form().GetCanvas().FillRect({10, 20, 30, 25});
    };
    Form().Invalidate();
    EXPECT_TRUE(SamePixels(ReadClient(Form().WindowHandle()), [](int x, int y) {
        return x >= 10 && x < 30 && y >= 20 && y < 25 ? RGB(255, 0, 0) : RGB(255, 255, 255);
    }));
}

TEST_F(FormLifeTest, AFormInAFormActsAsAControl) {
    auto* inner = Make<TForm>({20, 30, 120, 130});
    inner->SetBorderStyle(bsNone);
    auto* button = Make<TButton>({10, 10, 80, 35}, inner);
    inner->SetVisible(true);
    EXPECT_EQ(GetParent(inner->WindowHandle()), Form().WindowHandle());
    EXPECT_EQ(GetParentForm(button), &Form());
    button->SetFocus();
    EXPECT_EQ(Form().GetActiveControl(), button);
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

TEST_F(FormLifeTest, AHundredNewWindowsLeaveNothingBehind) {
    Make<TButton>({10, 10, 80, 35});
    const auto before = ResourceSnapshot::Take();
    for (int i = 0; i < 100; ++i)
        Form().RecreateWnd();
    PumpAll();
    EXPECT_EQ(before.ChangeSince(), "");
}

}  // namespace
}  // namespace test
