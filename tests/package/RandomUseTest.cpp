#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/controls/Drag.h"
#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Ledger.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/package/Furnishing.h"
#include "tests/package/Playing.h"
#include "tests/package/PropertyChanges.h"
#include "tests/support/CalendarFonts.h"
#include "tests/support/FormTest.h"
#include "tests/support/FreedMemory.h"
#include "tests/support/LeftOut.h"

// A restless user, a restless program and a restless system at work on a form with every class of the
// palette.

namespace test {
namespace {

using namespace vcl;

constexpr int Columns = 5;
constexpr int CellWidth = 150;
constexpr int CellHeight = 110;

/// A form with a panel for each class of the palette, read from a form file.
std::unique_ptr<TForm> FullForm() {
    TForm draft(nullptr);
    draft.SetBounds(20, 20, Columns * CellWidth + 20, 5 * CellHeight + 40);
    int index = 0;
    for (const qv7skin::TPaletteEntry& entry : qv7skin::PaletteEntries()) {
        if (!entry.Class) continue;
        auto* cell = new TPanel(&draft);
        cell->SetName(L"Cell" + IntToStr(index));
        cell->SetBounds(index % Columns * CellWidth, index / Columns * CellHeight, CellWidth - 6,
                        CellHeight - 6);
        cell->SetParent(&draft);
        TComponent* component = entry.Class().Create(&draft);
        component->SetName(L"Component" + IntToStr(index++));
        const bool isControl = entry.Class().InheritsFrom(TControl::StaticClass());
        component->SetParentComponent(isControl ? static_cast<TComponent*>(cell) : &draft);
    }
    const TFormDocument document = TWriter().WriteRootComponent(draft);
    auto form = std::make_unique<TForm>(nullptr);
    TReader(document).ReadRootComponent(form.get());
    for (int i = 0; i < index; ++i)
        Furnish(*form->FindComponent(L"Component" + IntToStr(i)), *form,
                dynamic_cast<TWinControl&>(*form->FindComponent(L"Cell" + IntToStr(i))));
    return form;
}

class RandomScenes : public FormTest {
public:
    static void SetUpTestSuite() {
        qv7skin::Register();
        BeforeSnapshots(WarmUpScenes);
    }

protected:
    void TearDown() override {
        FMenus.Sweep();
        FormTest::TearDown();
        EXPECT_EQ(FreedMemory::WrittenBlocks(), 0) << "blocks written to after they were freed";
    }

    void Run(unsigned seed, int steps) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::printf("seed %u, %d steps\n", seed, steps);
        FRandom.seed(seed);
        const TLedger::Counts before = TLedger::Snapshot();
        FForm = FullForm();
        FForm->Show();
        PumpAll();
        for (int i = 0; i < steps; ++i) {
            RescueLater();
            try {
                Act();
                PumpAll();
            } catch (const Exception& error) {
                // What a program asks for may be refused.
                EXPECT_STRNE(error.what(), "");
            }
            DropSteps();
            CheckErrors();
            if (!FForm->GetVisible()) FForm->Show();
        }
        // Where the right button goes up a menu may open.
        RescueLater();
        for (const MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle})
            Input.Release(button);
        DropSteps();
        CancelDrag();
        FForm.reset();
        PumpAll();
        Application().CancelHint();
        Application().DoIdle();
        CheckErrors();
        for (const auto& [kind, count] : TLedger::Difference(before, TLedger::Snapshot()))
            ADD_FAILURE() << kind << " " << count;
    }

private:
    int Next(int limit) {
        return static_cast<int>(
            std::uniform_int_distribution<unsigned>(0, static_cast<unsigned>(limit) - 1)(FRandom));
    }
    template <class Values>
    auto AnyOf(const Values& values) {
        return *(std::begin(values) + Next(static_cast<int>(std::size(values))));
    }
    TComponent& AnyComponent() { return *FForm->GetComponent(Next(FForm->GetComponentCount())); }
    TWinControl* AnyWindow() {
        for (int tries = 0; tries < 50; ++tries)
            if (auto* window = dynamic_cast<TWinControl*>(&AnyComponent())) return window;
        return FForm.get();
    }
    void CheckErrors() {
        for (const std::string& error : Errors)
            EXPECT_FALSE(error.starts_with("std::exception")) << error;
        Errors.clear();
    }

    void Act() {
        switch (Next(10)) {
            case 0:
            case 1:
            case 2:
                return UseMouse();
            case 3:
                return UseKeys();
            case 4:
            case 5:
                return SendSomething();
            case 6:
            case 7:
                return ChangeSomething();
            case 8:
                return MoveSomething();
            default:
                (void)PumpUntil([] { return false; }, std::chrono::milliseconds(Next(15)));
        }
    }

    void UseMouse() {
        const TWinControl* window = AnyWindow();
        const TPoint point = window->ClientToScreen({Next(window->GetWidth() + 10), Next(60)});
        Input.MoveTo({std::clamp(point.X, 0, 1020), std::clamp(point.Y, 0, 760)});
        if (IsOnFrame()) return;
        const auto button = AnyOf(std::initializer_list<MouseButton>{
            MouseButton::Left, MouseButton::Left, MouseButton::Right, MouseButton::Middle});
        switch (Next(6)) {
            case 0:
                return Input.Press(button);
            case 1:
            case 2:
                return Input.Release(button);
            case 3:
                return Input.Click(button);
            case 4:
                return Input.Wheel(Next(2) ? 1 : -1);
            default:
                return;
        }
    }

    /// Where a button of the frame is pressed, or the caption by the right button, the system handles no
    /// message but the mouse's until it goes up.
    [[nodiscard]] bool IsOnFrame() const {
        constexpr std::array<LRESULT, 6> parts{HTCAPTION,   HTSYSMENU, HTMINBUTTON,
                                               HTMAXBUTTON, HTCLOSE,   HTHELP};
        const POINT point = Input.Position();
        const LRESULT part =
            SendMessageW(WindowFromPoint(point), WM_NCHITTEST, 0, MAKELPARAM(point.x, point.y));
        return std::ranges::find(parts, part) != parts.end();
    }

    void UseKeys() {
        constexpr std::array<WORD, 17> keys{VK_TAB,  VK_RETURN, VK_ESCAPE, VK_SPACE, VK_DOWN,  VK_UP,
                                            VK_LEFT, VK_RIGHT,  VK_HOME,   VK_END,   VK_PRIOR, VK_NEXT,
                                            VK_F4,   VK_DELETE, VK_BACK,   'A',      '7'};
        TWinControl* window = AnyWindow();
        if (Next(2) && window->CanFocus()) window->SetFocus();
        if (Next(4) == 0)
            return Input.Chord({AnyOf(std::initializer_list<WORD>{VK_SHIFT, VK_CONTROL})}, VK_TAB);
        Input.KeyPress(AnyOf(keys));
    }

    void SendSomething() {
        constexpr std::array<UINT, 39> messages{
            WM_CANCELMODE,    WM_CAPTURECHANGED, WM_MOUSELEAVE,     WM_TIMER,           WM_SYSCOLORCHANGE,
            WM_SETTINGCHANGE, WM_FONTCHANGE,     WM_THEMECHANGED,   WM_QUERYENDSESSION, WM_KILLFOCUS,
            WM_SETFOCUS,      WM_MOUSEMOVE,      WM_LBUTTONDOWN,    WM_LBUTTONUP,       WM_LBUTTONDBLCLK,
            WM_RBUTTONDOWN,   WM_RBUTTONUP,      WM_KEYDOWN,        WM_KEYUP,           WM_CHAR,
            WM_HSCROLL,       WM_VSCROLL,        WM_ERASEBKGND,     WM_PAINT,           WM_ENABLE,
            WM_SHOWWINDOW,    WM_SETREDRAW,      WM_GETDLGCODE,     WM_DISPLAYCHANGE,   WM_ACTIVATEAPP,
            WM_NULL,          CM_RECREATEWND,    CM_MOUSEENTER,     CM_MOUSELEAVE,      CM_FONTCHANGED,
            CM_COLORCHANGED,  CM_ENABLEDCHANGED, CM_VISIBLECHANGED, CM_TEXTCHANGED};
        const TWinControl* window = AnyWindow();
        if (!window->HandleAllocated()) return;
        HWND target = const_cast<TWinControl*>(window)->GetHandle();
        if (HWND inner = GetWindow(target, GW_CHILD); inner && Next(2)) target = inner;
        const UINT message = AnyOf(messages);
        const bool isPositioned = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
        const LPARAM lParam = isPositioned ? MAKELPARAM(Next(200), Next(100)) : 0;
        const bool needsNoParameter = message == WM_ERASEBKGND || message == WM_SETTINGCHANGE;
        const WPARAM wParam = needsNoParameter ? 0 : static_cast<WPARAM>(Next(12));
        if (Next(2))
            PostMessageW(target, message, wParam, lParam);
        else
            SendMessageW(target, message, wParam, lParam);
    }

    void ChangeSomething() {
        TComponent& component = AnyComponent();
        const auto changes = ChangesOf(component, *FForm);
        if (changes.empty()) return;
        const PropertyChange& change =
            changes[static_cast<std::size_t>(Next(static_cast<int>(changes.size())))];
        if (component.InheritsFrom(TPanel::StaticClass()) && change.Path == "Visible") return;
        change.Apply(component);
    }

    void MoveSomething() {
        auto* control = dynamic_cast<TControl*>(&AnyComponent());
        if (!control) return;
        switch (Next(6)) {
            case 0:
                return control->SetBounds(Next(40) - 10, Next(40) - 10, Next(200), Next(120));
            case 1:
                return control->SetVisible(!control->GetVisible());
            case 2:
                return control->SetEnabled(!control->GetEnabled());
            case 3: {
                TWinControl* parent = AnyWindow();
                auto* moved = dynamic_cast<TWinControl*>(control);
                const bool isPlain = dynamic_cast<TPanel*>(parent) && !dynamic_cast<TPanel*>(control);
                if (isPlain && !(moved && moved->ContainsControl(parent))) control->SetParent(parent);
                return;
            }
            case 4:
                return FForm->SetBounds(Next(60), Next(60), 500 + Next(300), 400 + Next(300));
            default:
                return control->BeginDrag(Next(2) == 0);
        }
    }

    std::mt19937 FRandom;
    std::unique_ptr<TForm> FForm;
    CalendarFonts FCalendarFonts;
    CalendarMenus FMenus;
    // The system has one for each window that it happens to paint at the same time; ours are in the ledger.
    const LeftOut FRegions{"gdi:region"};
    FreedMemory FGuard;
};

TEST_F(RandomScenes, AreLeftInOrder) {
    for (const unsigned seed : {1U, 2U})
        Run(seed, 250);
}

/// SOAK_SEED: where to begin; SOAK_ROUNDS: how many seeds from there.
class RandomScenesSoak : public RandomScenes {};

TEST_F(RandomScenesSoak, AreLeftInOrder) {
    const auto number = [](const char* name, int otherwise) {
        const char* text = std::getenv(name);
        return text ? std::atoi(text) : otherwise;
    };
    const int first = number("SOAK_SEED", 100);
    for (int i = 0; i < number("SOAK_ROUNDS", 100) && !HasFailure(); ++i)
        Run(static_cast<unsigned>(first + i), 1000);
}

}  // namespace
}  // namespace test
