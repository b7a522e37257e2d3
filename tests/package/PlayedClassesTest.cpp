#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>

#include "platform/flatstyle/FlatToggle.h"
#include "platform/vcl/actions/ActionBar.h"
#include "platform/vcl/controls/Control.h"
#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "tests/package/ClassScene.h"
#include "tests/package/Furnishing.h"
#include "tests/package/Playing.h"
#include "tests/support/CalendarFonts.h"
#include "tests/support/FormTest.h"
#include "tests/support/FreedMemory.h"
#include "tests/support/SentMessages.h"

// What holds for the events of every class that is registered, whoever brings it: a handler may free the
// component, what it stands on, or its form, and it may raise an error.

namespace test {
namespace {

using namespace vcl;

/// All classes with events, or those of the package's own page and forms.
TClassList ClassesWithEvents(bool all) {
    TClassList classes = CreatableClasses();
    std::erase_if(classes, [all](const TMetaClass* meta) {
        const bool isFramework = !String(meta->ClassName()).starts_with(L"TQV7");
        return !all && isFramework && meta != &TForm::StaticClass();
    });
    std::erase_if(classes, [](const TMetaClass* meta) {
        return std::ranges::none_of(meta->AllProperties(), [](const TPublishedProperty* row) {
            return row->Kind() == TPropertyKind::Event;
        });
    });
    return classes;
}

/// An event, and a step that raises it.
struct Occasion {
    std::string Event;
    const Step* With;
};

/// Events that are published and that nothing raises which a step does.
bool IsSilent(const LivingScene& scene, const std::string& event) {
    static const std::set<std::string> silent{
        "OnGetSiteInfo",    // nothing docks
        "OnSetButtonSize",  // kept for form files
        "OnException",      // no step raises an error
        "OnDestroy",        // comes when the listening is over
        "OnDrawItem",       // OnAdvancedDrawItem comes instead when both are bound
        "OnMinimize",       // of programs with a main form
        "OnRestore",
    };
    if (silent.contains(event)) return true;
    // These bars show what an action manager has for them, and there is none.
    if (scene.Subject()->InheritsFrom(TCustomActionBar::StaticClass()))
        return event == "OnGetControlClass" || event == "OnExitMenuLoop" || event == "OnPopup";
    // Windows of the system that tell of clicks by notifications take a second click as another one.
    const TControl* control = scene.Control();
    constexpr TControlStyle doubleClicks{csClickEvents, csDoubleClicks};
    if (event == "OnDblClick" && dynamic_cast<const flatstyle::TFlatToggle*>(control)) return true;
    if (event == "OnDblClick" && control && !control->ControlStyle.ContainsAll(doubleClicks)) return true;
    static const std::set<std::string> ofMouse{"OnClick",      "OnDblClick",   "OnMouseDown", "OnMouseMove",
                                               "OnMouseEnter", "OnMouseLeave", "OnMouseUp"};
    return ofMouse.contains(event) && IsCovered(scene);
}

/// Counts the messages that the thread takes from its queue, and acts before a certain one is handled.
class MessageCounter {
public:
    MessageCounter(int number, std::function<void()> action)
        : FNumber(number), FAction(std::move(action)), FOuter(std::exchange(Current(), this)) {
        FHook = SetWindowsHookExW(WH_GETMESSAGE, Look, nullptr, GetCurrentThreadId());
    }
    ~MessageCounter() {
        UnhookWindowsHookEx(FHook);
        Current() = FOuter;
    }
    MessageCounter(const MessageCounter&) = delete;
    MessageCounter& operator=(const MessageCounter&) = delete;
    [[nodiscard]] int Count() const { return FCount; }

private:
    static MessageCounter*& Current() {
        static MessageCounter* current = nullptr;
        return current;
    }
    static LRESULT CALLBACK Look(int code, WPARAM removed, LPARAM lParam) {
        MessageCounter* counter = Current();
        if (code == HC_ACTION && removed == PM_REMOVE && counter && ++counter->FCount == counter->FNumber)
            counter->FAction();
        return CallNextHookEx(nullptr, code, removed, lParam);
    }

    int FNumber;
    std::function<void()> FAction;
    MessageCounter* FOuter;
    HHOOK FHook;
    int FCount = 0;
};

class PlayedClasses : public FormTest, public testing::WithParamInterface<const TMetaClass*> {
public:
    static void SetUpTestSuite() { BeforeSnapshots(WarmUpScenes); }

protected:
    enum class Way { Component, Parent, Form };

    void TearDown() override {
        FMenus.Sweep();
        FormTest::TearDown();
        EXPECT_EQ(FreedMemory::WrittenBlocks(), 0) << "blocks written to after they were freed";
    }

    /// For each event the steps that raise it, at most `limit` of them.
    std::vector<Occasion> Learn(int limit) {
        std::vector<Occasion> occasions;
        std::map<std::string, int> found;
        for (const Step& step : Steps()) {
            LivingScene scene(*GetParam());
            const std::set<std::string> raised = Raised(scene, step);
            for (const std::string& name : raised)
                if (found[name]++ < limit) occasions.push_back({name, &step});
        }
        return occasions;
    }

    /// What a step raises.
    std::set<std::string> Raised(LivingScene& scene, const Step& step) {
        // The scene may live longer than this call.
        const auto raised = std::make_shared<std::set<std::string>>();
        const auto listening = std::make_shared<bool>(&step == &Steps().front());
        for (const SceneEvent& event : scene.Events())
            event.Bind([raised, listening, name = event.Name] {
                if (*listening) raised->insert(name);
            });
        RunStep(step, {scene, Input, [] { return false; }}, [&] { *listening = true; });
        *listening = false;
        return *raised;
    }

    /// Plays the step with this handler of the event, which is called once.
    void RunWith(LivingScene& scene, const Occasion& occasion, const std::function<void()>& handler) {
        const auto armed = std::make_shared<bool>(occasion.With == &Steps().front());
        const auto acted = std::make_shared<bool>(false);
        const auto act = [armed, acted, &scene, &handler] {
            if (!*armed || *acted || !scene.Form() || !scene.Place()) return;
            *acted = true;
            handler();
        };
        for (const SceneEvent& event : scene.Events())
            event.Bind(event.Name == occasion.Event ? std::function<void()>(act) : [] {});
        try {
            RunStep(*occasion.With, {scene, Input, [&] { return *acted; }}, [&] { *armed = true; });
            // Other programs, such as that of the desktop, take their time when they are clicked on.
            if (!*acted) (void)PumpUntil([&] { return *acted; }, std::chrono::milliseconds(500));
        } catch (const Exception& error) {
            Caught.push_back(error.what());
            DropSteps();
        }
        *armed = false;
        EXPECT_TRUE(*acted) << "was raised before, not now";
        Input.Release();
    }

    void ExpectAllRaised(const std::vector<Occasion>& occasions) {
        std::set<std::string> missing;
        LivingScene scene(*GetParam());
        scene.Show();
        for (const SceneEvent& event : scene.Events())
            if (!IsSilent(scene, event.Name)) missing.insert(event.Name);
        RecordProperty("events", static_cast<int>(missing.size()));
        for (const Occasion& occasion : occasions) {
            RecordProperty(occasion.Event, occasion.With->Name);
            missing.erase(occasion.Event);
        }
        EXPECT_EQ(missing, std::set<std::string>()) << "no step raised them";
    }

    void FreeIn(const Occasion& occasion, Way way) {
        LivingScene scene(*GetParam());
        RunWith(scene, occasion, [&] {
            if (way == Way::Component) return scene.Subject()->Free();
            if (way == Way::Parent) return scene.Place()->Free();
            // Forms can't be closed while they are shown or hidden.
            if (scene.Subject() != scene.Form()) scene.Form()->Close();
            if (scene.Form()) scene.Form()->Release();
        });
        EXPECT_EQ(Caught, std::vector<std::string>());
        EXPECT_EQ(Errors, std::vector<std::string>());
    }

    void FailIn(const Occasion& occasion) {
        LivingScene scene(*GetParam());
        const SentMessages sent;
        bool inside = false;
        RunWith(scene, occasion, [&] {
            inside = sent.InCallback();
            throw EInvalidOperation(HandlerErrorText);
        });
        if (occasion.Event == "Tab.OnUndock") {
            // The end of a drag is nobody's doing, and says nothing.
        } else if (inside) {
            EXPECT_EQ(Caught, std::vector<std::string>()) << "crossed a callback of the system";
            EXPECT_EQ(Errors, std::vector<std::string>{"EInvalidOperation: " + ToUtf8(HandlerErrorText)});
        } else {
            EXPECT_EQ(Errors.size() + Caught.size(), 1u);
        }
        Errors.clear();
        Caught.clear();
        ASSERT_TRUE(scene.Subject() && scene.Form());
        for (int tries = 0; tries < 2; ++tries)
            if (scene.Form() && Raised(scene, *occasion.With).contains(occasion.Event)) return;
        // Some events come once.
        LivingScene other(*GetParam());
        Raised(other, *occasion.With);
        EXPECT_FALSE(other.Form() && Raised(other, *occasion.With).contains(occasion.Event))
            << "does not come again after an error";
    }

    /// Lets go what stays a moment longer: hints, and forms that are released.
    static void Settle() {
        PumpAll();
        Application().CancelHint();
        Application().DoIdle();
    }

    template <class Action>
    void Apart(const std::string& what, Action action) {
        SCOPED_TRACE(what);
        // TEST_TRACE: says what a crash came from.
        if (std::getenv("TEST_TRACE")) std::printf("%s\n", what.c_str());
        Settle();
        const auto before = TLedger::Snapshot();
        action();
        Settle();
        for (const auto& [kind, count] : TLedger::Difference(before, TLedger::Snapshot()))
            ADD_FAILURE() << kind << " " << count;
        Errors.clear();
        Caught.clear();
    }

    void RunAll(int limit) {
        const bool isForm = GetParam()->InheritsFrom(TCustomForm::StaticClass());
        const std::vector<Occasion> occasions = Learn(limit);
        ExpectAllRaised(occasions);
        for (const Occasion& occasion : occasions) {
            const std::string what = occasion.Event + " by " + occasion.With->Name;
            if (!isForm) {
                Apart(what + " frees the component", [&] { FreeIn(occasion, Way::Component); });
                Apart(what + " frees the parent", [&] { FreeIn(occasion, Way::Parent); });
            }
            Apart(what + " frees the form", [&] { FreeIn(occasion, Way::Form); });
            Apart(what + " fails", [&] { FailIn(occasion); });
        }
    }

    // --- handlers that change things

    struct Deed {
        const char* Name;
        std::function<void(LivingScene&)> Do;
    };

    /// What handlers do that want to go on living.
    static const std::vector<Deed>& Deeds() {
        static const std::vector<Deed> all{
            {"disables it", [](LivingScene& scene) { scene.Target()->SetEnabled(false); }},
            {"hides it", [](LivingScene& scene) { scene.Target()->SetVisible(false); }},
            {"makes it smaller", [](LivingScene& scene) { scene.Target()->SetBounds(2, 2, 9, 9); }},
            {"makes the windows anew", [](LivingScene& scene) { scene.Form()->Perform(CM_RECREATEWND); }},
            {"gives it another parent", [](LivingScene& scene) { scene.Target()->SetParent(scene.Form()); }},
            {"gives the focus away",
             [](LivingScene& scene) {
                 if (scene.Form()->CanFocus() && scene.Other()->CanFocus()) scene.Other()->SetFocus();
             }},
            {"handles messages", [](LivingScene&) { Application().ProcessMessages(); }},
            {"paints it", [](LivingScene& scene) { scene.Target()->Repaint(); }},
            {"empties it", [](LivingScene& scene) { Empty(*scene.Subject()); }},
            {"shows a dialog", [](LivingScene&) { ShowDialog(); }},
        };
        return all;
    }

    static void ShowDialog() {
        TForm dialog(nullptr);
        dialog.SetBounds(500, 400, 120, 80);
        dialog.OnShow = [&dialog](TObject*) { PostMessageW(dialog.GetHandle(), WM_CLOSE, 0, 0); };
        dialog.ShowModal();
    }

    void ChangeIn(const Occasion& occasion, const Deed& deed) {
        LivingScene scene(*GetParam());
        RunWith(scene, occasion, [&] { deed.Do(scene); });
        EXPECT_EQ(Caught, std::vector<std::string>());
        EXPECT_EQ(Errors, std::vector<std::string>());
        ASSERT_TRUE(scene.Subject() && scene.Form());
        EXPECT_EQ(GetDragObject(), nullptr);
        scene.Target()->SetEnabled(true);
        if (!scene.Target()->GetVisible()) scene.Target()->SetVisible(true);
        // Once more, as if nothing had been; the scene's own item may be gone.
        if (deed.Name == std::string("empties it")) return;
        Raised(scene, *occasion.With);
        EXPECT_EQ(Errors, std::vector<std::string>());
    }

    void ChangeInAll() {
        for (const Occasion& occasion : Learn(3))
            for (const Deed& deed : Deeds()) {
                const bool isForm = GetParam()->InheritsFrom(TCustomForm::StaticClass());
                // Forms have no parent, and can't hide or get another window while they are shown.
                if (isForm && !OfForms(deed)) continue;
                Apart(occasion.Event + " by " + occasion.With->Name + " " + deed.Name,
                      [&] { ChangeIn(occasion, deed); });
            }
    }

    static bool OfForms(const Deed& deed) {
        const std::string name = deed.Name;
        return name != "disables it" && name != "hides it" && name != "gives it another parent" &&
               name != "makes the windows anew";
    }

    // --- the end comes between two messages

    void FreeAtMessage(const Step& step, int number, Way way) {
        LivingScene scene(*GetParam());
        for (const SceneEvent& event : scene.Events())
            event.Bind([] {});
        bool acted = false;
        std::optional<MessageCounter> messages;
        try {
            RunStep(step, {scene, Input, [&] { return acted; }}, [&] {
                messages.emplace(number, [&] {
                    acted = true;
                    FreeBy(scene, way);
                });
            });
        } catch (const Exception& error) {
            Caught.push_back(error.what());
            DropSteps();
        }
        messages.reset();
        Input.Release();
        EXPECT_EQ(Caught, std::vector<std::string>());
        EXPECT_EQ(Errors, std::vector<std::string>());
    }

    static void FreeBy(LivingScene& scene, Way way) {
        TComponent* gone = scene.Form();
        if (way == Way::Parent) gone = scene.Place();
        if (way == Way::Component) gone = scene.Subject();
        if (gone) gone->Free();
    }

    int MessagesOf(const Step& step) {
        LivingScene scene(*GetParam());
        std::optional<MessageCounter> messages;
        RunStep(step, {scene, Input, [] { return false; }}, [&] { messages.emplace(0, [] {}); });
        return messages ? messages->Count() : 0;
    }

    void FreeAtMessages() {
        constexpr int places = 5;
        const bool isForm = GetParam()->InheritsFrom(TCustomForm::StaticClass());
        for (const Step& step : Steps()) {
            const int count = MessagesOf(step);
            std::set<int> numbers;
            for (int i = 0; i < places; ++i)
                numbers.insert(1 + count * i / places);
            for (const int number : numbers)
                for (const Way way : {Way::Component, Way::Parent, Way::Form}) {
                    if (isForm && way != Way::Form) continue;
                    Apart(step.Name + ", message " + std::to_string(number) + " of " + std::to_string(count) +
                              ", way " + std::to_string(static_cast<int>(way)),
                          [&] { FreeAtMessage(step, number, way); });
                }
        }
    }

    std::vector<std::string> Caught;  ///< Texts of errors that came to the test.
    CalendarFonts FCalendarFonts;
    CalendarMenus FMenus;
    FreedMemory FGuard;
};

TEST_P(PlayedClasses, SurviveWhatHandlersDo) {
    RunAll(1);
}

/// Each event in every way that raises it.
class PlayedClassesSoak : public PlayedClasses {};

TEST_P(PlayedClassesSoak, SurviveWhatHandlersDo) {
    RunAll(1000);
}

TEST_P(PlayedClassesSoak, SurviveWhatHandlersChange) {
    ChangeInAll();
}

TEST_P(PlayedClassesSoak, MayBeFreedAtAnyMessage) {
    FreeAtMessages();
}

INSTANTIATE_TEST_SUITE_P(Registered, PlayedClasses, testing::ValuesIn(ClassesWithEvents(false)),
                         [](const auto& info) { return ToUtf8(info.param->ClassName()); });
INSTANTIATE_TEST_SUITE_P(Registered, PlayedClassesSoak, testing::ValuesIn(ClassesWithEvents(true)),
                         [](const auto& info) { return ToUtf8(info.param->ClassName()); });

}  // namespace
}  // namespace test
