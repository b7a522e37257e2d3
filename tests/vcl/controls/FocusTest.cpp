#include "platform/vcl/core/Exceptions.h"
#include "tests/vcl/controls/ControlsTest.h"

namespace test {
namespace {

class FocusOfControls : public ControlsTest {
protected:
    TProbeWindow* Stop(const wchar_t* name, TWinControl* parent = nullptr) {
        auto* control = Make<TProbeWindow>({0, 0, 20, 20}, parent);
        control->SetName(name);
        control->SetTabStop(true);
        control->OnEnter = [this, control](TObject*) {
            Seen.push_back(ToUtf8(control->GetName()) + " enter");
        };
        control->OnExit = [this, control](TObject*) { Seen.push_back(ToUtf8(control->GetName()) + " exit"); };
        return control;
    }
    [[nodiscard]] std::string Order(const TWinControl& parent) const {
        std::string text;
        for (const TWinControl* child : parent.TabList())
            text += ToUtf8(child->GetName());
        return text;
    }
    Log Seen;
};

TEST_F(FocusOfControls, MovesWithEnterAndExit) {
    TProbeWindow* a = Stop(L"a");
    TProbeWindow* b = Stop(L"b");
    a->SetFocus();
    EXPECT_TRUE(a->Focused());
    EXPECT_EQ(GetFocus(), a->WindowHandle());
    b->SetFocus();
    EXPECT_FALSE(a->Focused());
    EXPECT_TRUE(b->Focused());
    EXPECT_EQ(Form->GetActiveControl(), b);
    EXPECT_EQ(Seen, (Log{"a enter", "a exit", "b enter"}));
}

TEST_F(FocusOfControls, AllControlsHearOfAChange) {
    TProbeWindow* a = Stop(L"a");
    TProbeWindow* b = Stop(L"b");
    LPARAM heard = 0;
    a->MessageHook = [&](TMessage& m) {
        if (m.Msg == CM_FOCUSCHANGED) heard = m.LParam;
    };
    b->SetFocus();
    EXPECT_EQ(heard, reinterpret_cast<LPARAM>(b));
}

TEST_F(FocusOfControls, DisabledAndInvisibleOnesRefuseIt) {
    TProbeWindow* outer = Stop(L"outer");
    TProbeWindow* inner = Stop(L"inner", outer);
    const auto refusal = [&] {
        try {
            inner->SetFocus();
        } catch (const EInvalidOperation& e) {
            return e.Message();
        }
        return String();
    };
    const String message = L"Cannot focus a disabled or invisible window";
    inner->SetEnabled(false);
    EXPECT_FALSE(inner->CanFocus());
    EXPECT_EQ(refusal(), message);
    inner->SetEnabled(true);
    EXPECT_EQ(refusal(), String());
    outer->SetVisible(false);
    EXPECT_EQ(refusal(), message);
    outer->SetVisible(true);
    outer->SetEnabled(false);
    EXPECT_EQ(refusal(), message);
}

TEST_F(FocusOfControls, DisablingHidingAndFreeingGiveItBack) {
    TProbeWindow* a = Stop(L"a");
    a->SetFocus();
    a->SetEnabled(false);
    EXPECT_EQ(GetFocus(), Form->WindowHandle());
    a->SetEnabled(true);
    a->SetFocus();
    a->Hide();
    EXPECT_EQ(GetFocus(), Form->WindowHandle());
    a->Show();
    a->SetFocus();
    a->Free();
    EXPECT_EQ(Form->GetActiveControl(), Form);
}

TEST_F(FocusOfControls, WorksInAForeignWindowWithoutAForm) {
    TProbeWindow alone(nullptr);
    alone.SetBounds(0, 0, 30, 30);
    alone.SetParentWindow(Top->Handle());
    alone.SetFocus();
    EXPECT_TRUE(alone.Focused());
    alone.SetEnabled(false);
    EXPECT_THROW(alone.SetFocus(), EInvalidOperation);
}

TEST_F(FocusOfControls, TabOrderIsTheOrderOfInsertionUntilItIsSet) {
    Stop(L"a");
    TProbeWindow* b = Stop(L"b");
    Stop(L"c");
    EXPECT_EQ(Order(*Form), "abc");
    EXPECT_EQ(b->GetTabOrder(), 1);
    b->SetTabOrder(0);
    EXPECT_EQ(Order(*Form), "bac");
    b->SetTabOrder(2);
    EXPECT_EQ(Order(*Form), "acb");
    b->SetTabOrder(1);
    EXPECT_EQ(Order(*Form), "abc");
    b->SetTabOrder(-1);
    EXPECT_EQ(Order(*Form), "acb");
    b->SetTabOrder(77);
    EXPECT_EQ(b->GetTabOrder(), 2);
    TProbeWindow alone(nullptr);
    EXPECT_EQ(alone.GetTabOrder(), -1);
    b->SendToBack();
    EXPECT_EQ(Order(*Form), "acb") << "other than the order of painting";
}

TEST_F(FocusOfControls, TabOrdersOfAFormFileAreAppliedWhenItIsComplete) {
    TProbeWindow parent(nullptr);
    parent.BeginLoading();
    std::vector<std::unique_ptr<TProbeWindow>> children;
    for (const auto& [name, order] : {std::pair{L"a", 2}, {L"b", 0}, {L"c", 1}}) {
        auto& child = children.emplace_back(std::make_unique<TProbeWindow>(nullptr));
        child->BeginLoading();
        child->SetParent(&parent);
        child->SetName(name);
        child->SetTabOrder(order);
    }
    EXPECT_EQ(Order(parent), "abc");
    parent.EndLoading();
    EXPECT_EQ(Order(parent), "bca");
    for (auto& child : children)
        child->EndLoading();
    EXPECT_EQ(Order(parent), "bca");
}

TEST_F(FocusOfControls, TheNextControlGoesThroughAllLevelsAndRound) {
    TProbeWindow* a = Stop(L"a");
    TProbeWindow* group = Stop(L"group");
    group->SetTabStop(false);
    TProbeWindow* inner = Stop(L"inner", group);
    TProbeWindow* b = Stop(L"b");
    EXPECT_EQ(Form->FindNextControl(nullptr, true, true, false), a);
    EXPECT_EQ(Form->FindNextControl(a, true, true, false), inner);
    EXPECT_EQ(Form->FindNextControl(inner, true, true, false), b);
    EXPECT_EQ(Form->FindNextControl(b, true, true, false), a);
    EXPECT_EQ(Form->FindNextControl(a, false, true, false), b);
    EXPECT_EQ(Form->FindNextControl(nullptr, false, true, false), b);
    EXPECT_EQ(Form->FindNextControl(a, true, false, true), group) << "children of the form only";
    inner->SetEnabled(false);
    EXPECT_EQ(Form->FindNextControl(a, true, true, false), b);
    Form->SelectNext(a, true, true);
    EXPECT_TRUE(b->Focused());
    Form->SelectFirst();
    EXPECT_TRUE(a->Focused());
}

TEST_F(FocusOfControls, TabStopChangesTheWindowToo) {
    TProbeWindow* a = Stop(L"a");
    EXPECT_NE(GetWindowLongW(a->WindowHandle(), GWL_STYLE) & WS_TABSTOP, 0);
    a->SetTabStop(false);
    EXPECT_EQ(GetWindowLongW(a->WindowHandle(), GWL_STYLE) & WS_TABSTOP, 0);
    EXPECT_EQ(Form->FindNextControl(nullptr, true, true, false), nullptr);
}

}  // namespace
}  // namespace test
