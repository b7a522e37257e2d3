#include <cstdio>
#include <cstdlib>
#include <limits>

#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/forms/Form.h"
#include "tests/package/ClassScene.h"
#include "tests/package/LivingScene.h"
#include "tests/package/Playing.h"
#include "tests/support/CalendarFonts.h"
#include "tests/support/FormTest.h"
#include "tests/support/FreedMemory.h"

// What every class that is registered endures: windows made anew, other parents and forms, extreme values.

namespace test {
namespace {

using namespace vcl;

constexpr int Often = 100;

class EnduringClasses : public FormTest, public testing::WithParamInterface<const TMetaClass*> {
public:
    static void SetUpTestSuite() { BeforeSnapshots(WarmUpScenes); }

protected:
    void TearDown() override {
        FormTest::TearDown();
        EXPECT_EQ(FreedMemory::WrittenBlocks(), 0) << "blocks written to after they were freed";
    }

    [[nodiscard]] static bool IsForm() { return GetParam()->InheritsFrom(TCustomForm::StaticClass()); }

    /// Does it many times. What lives must not become more with each time; some things are made later than
    /// others, when they are first needed.
    template <class Action>
    void Repeat(int times, Action action) {
        TLedger::Counts before;
        for (int i = 0; i < times; ++i) {
            if (i == times / 2) before = TLedger::Snapshot();
            action();
            PumpAll();
        }
        for (const auto& [kind, count] : TLedger::Difference(before, TLedger::Snapshot()))
            EXPECT_LT(count, times / 4) << kind;
    }

    static void On(LivingScene& scene, const std::string& name, const std::function<void()>& action) {
        for (const SceneEvent& event : scene.Events())
            if (event.Name == name) event.Bind(action);
    }

    CalendarFonts FCalendarFonts;
    FreedMemory FGuard;
};

TEST_P(EnduringClasses, WindowsAreMadeAnew) {
    LivingScene scene(*GetParam());
    scene.Show();
    auto* window = dynamic_cast<TWinControl*>(scene.Control());
    if (!window) window = scene.Place();
    Repeat(Often, [&] {
        window->Perform(CM_RECREATEWND);
        if (window->GetVisible()) window->HandleNeeded();
    });
    Repeat(Often / 5, [&] { scene.Form()->Perform(CM_RECREATEWND); });
    EXPECT_TRUE(IsWindowVisible(scene.Form()->GetHandle()));
}

TEST_P(EnduringClasses, MoveBetweenParentsAndForms) {
    LivingScene scene(*GetParam());
    LivingScene another(TForm::StaticClass());
    scene.Show();
    another.Show();
    TControl* moved = IsForm() || !scene.Control() ? scene.Place() : scene.Control();
    TWinControl* home = moved->GetParent();
    Repeat(Often / 5, [&] {
        for (TWinControl* parent : {another.Place(), static_cast<TWinControl*>(another.Form()), home}) {
            moved->SetParent(parent);
            PumpAll();
        }
        moved->SetParent(nullptr);
        moved->SetParent(home);
    });
    // The other form goes with it.
    moved->SetParent(another.Place());
    another.Form()->Free();
    EXPECT_TRUE(IsForm() || !scene.Control() || !dynamic_cast<TWinControl*>(moved) || !scene.Place() ||
                scene.Place()->GetControlCount() == 0);
}

TEST_P(EnduringClasses, AreHiddenShownAndDisabled) {
    LivingScene scene(*GetParam());
    scene.Show();
    Repeat(Often / 5, [&] {
        scene.Form()->Hide();
        PumpAll();
        scene.Form()->Show();
        scene.Form()->SetEnabled(false);
        PumpAll();
        scene.Form()->SetEnabled(true);
        scene.Target()->SetVisible(false);
        scene.Target()->SetEnabled(false);
        PumpAll();
        scene.Target()->SetVisible(true);
        scene.Target()->SetEnabled(true);
    });
    EXPECT_TRUE(IsWindowVisible(scene.Form()->GetHandle()));
}

TEST_P(EnduringClasses, NeedNoParent) {
    Repeat(Often / 5, [] {
        const std::unique_ptr<TComponent> alone(GetParam()->Create(nullptr));
        if (auto* control = dynamic_cast<TControl*>(alone.get())) {
            control->SetBounds(3, 4, 50, 60);
            control->Invalidate();
            control->SetEnabled(false);
            control->Perform(CM_MOUSEENTER);
            control->Perform(CM_MOUSELEAVE);
        }
        for (const TPublishedProperty* row : GetParam()->AllProperties())
            if (row->Kind() != TPropertyKind::Event) (void)row->Get(*alone);
    });
    EXPECT_EQ(Leaks(), "");
}

TEST_P(EnduringClasses, MayBeFreedWhenDisablingTakesTheFocus) {
    LivingScene scene(*GetParam());
    scene.Show();
    auto* window = dynamic_cast<TWinControl*>(scene.Control());
    if (IsForm() || !window || !window->CanFocus()) return;
    bool left = false;
    On(scene, "OnExit", [&] {
        left = true;
        scene.Subject()->Free();
    });
    window->SetFocus();
    window->SetEnabled(false);
    EXPECT_EQ(scene.Subject() == nullptr, left);
}

TEST_P(EnduringClasses, MayCloseTheFormWhenTheyGetTheFocus) {
    LivingScene scene(*GetParam());
    scene.Show();
    auto* window = dynamic_cast<TWinControl*>(scene.Control());
    if (IsForm() || !window || !window->CanFocus()) return;
    scene.Other()->SetFocus();
    On(scene, "OnEnter", [&] { scene.Form()->Close(); });
    EXPECT_NO_THROW(window->SetFocus());
    PumpAll();
    EXPECT_FALSE(window->Focused() && !scene.Form()->GetVisible());
}

// --- values

std::vector<TPropertyValue> ExtremesOf(const TPublishedProperty& row) {
    switch (row.Kind()) {
        case TPropertyKind::String:
            return {String(), String(1 << 20, L'W'), String(L"\n\t\r\n")};
        case TPropertyKind::Float:
            return {std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest(), 0.0,
                    std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()};
        case TPropertyKind::Component:
            return {static_cast<TPersistent*>(nullptr)};
        case TPropertyKind::Event:
        case TPropertyKind::Nested:
            return {};
        default:
            return {row.Minimum(), row.Maximum(), std::int64_t{0}, std::int64_t{-1}, std::int64_t{1}};
    }
}

class ExtremeValues : public EnduringClasses {
protected:
    /// Sets it; what is refused is refused by an error of the framework that says something.
    void Set(const TPublishedProperty& row, TPersistent& object, const TPropertyValue& value) {
        try {
            row.Set(object, value);
            PumpAll();
        } catch (const Exception& error) {
            EXPECT_STRNE(error.what(), "");
        }
    }

    static void Paint(TControl& control) {
        try {
            control.Repaint();
        } catch (const Exception& error) {
            EXPECT_STRNE(error.what(), "");
        }
    }

    void TryAll(LivingScene& scene, TPersistent& object, const std::string& prefix) {
        const TRect bounds = scene.Target()->GetBoundsRect();
        for (const TPublishedProperty* row : object.ClassType().AllProperties()) {
            if (row->Kind() == TPropertyKind::Event || SameText(row->Name(), L"Name")) continue;
            const std::string path = prefix + ToUtf8(row->Name());
            SCOPED_TRACE(path);
            if (std::getenv("TEST_TRACE")) std::printf("%s\n", path.c_str());
            const TPropertyValue before = row->Get(object);
            if (row->Kind() == TPropertyKind::Nested) {
                if (auto* nested = std::get<TPersistent*>(before)) TryAll(scene, *nested, path + ".");
                continue;
            }
            if (row->IsReadOnly()) continue;
            for (const TPropertyValue& value : ExtremesOf(*row)) {
                Set(*row, object, value);
                Paint(*scene.Target());
            }
            Set(*row, object, before);
            // What forced another size does not give the old one back.
            scene.Target()->SetBoundsRect(bounds);
            CheckErrors();
        }
    }

    /// Painting may fail for want of memory, with an error of the framework.
    void CheckErrors() {
        for (const std::string& error : Errors)
            EXPECT_FALSE(error.starts_with("std::exception")) << error;
        Errors.clear();
    }
};

TEST_P(ExtremeValues, AreTakenOrRefusedBeforeThereIsAWindow) {
    LivingScene scene(*GetParam());
    TryAll(scene, *scene.Subject(), {});
    try {
        scene.Show();
    } catch (const Exception& error) {
        // Sizes that anchors made of others may be too large to paint.
        EXPECT_STRNE(error.what(), "");
    }
    CheckErrors();
}

TEST_P(ExtremeValues, AreTakenOrRefusedOnTheScreen) {
    LivingScene scene(*GetParam());
    scene.Show();
    TryAll(scene, *scene.Subject(), {});
    CheckErrors();
}

INSTANTIATE_TEST_SUITE_P(Registered, EnduringClasses, testing::ValuesIn(CreatableClasses()),
                         [](const auto& info) { return ToUtf8(info.param->ClassName()); });
INSTANTIATE_TEST_SUITE_P(Registered, ExtremeValues, testing::ValuesIn(CreatableClasses()),
                         [](const auto& info) { return ToUtf8(info.param->ClassName()); });

}  // namespace
}  // namespace test
