#include "tests/package/Playing.h"

#include <array>
#include <chrono>
#include <utility>

#include "platform/vcl/actions/Action.h"
#include "platform/vcl/actions/ActionList.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/forms/Application.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "tests/package/PropertyChanges.h"
#include "tests/support/Pump.h"

namespace test {
namespace {

using namespace vcl;
using std::chrono::milliseconds;

constexpr milliseconds ShortWait{15};
/// Longer than the longest timer of a control.
constexpr milliseconds LongWait{700};
constexpr ULONGLONG LoopTooLong = 1000;

void SendKey(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void SendLeftUp() {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(1, &input, sizeof input);
}

bool IsInMenu() {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    return info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE);
}

}  // namespace

void RescueLater(int attempt) {
    constexpr int attemptsByKey = 5;
    const auto limit = GetTickCount64() + LoopTooLong;
    When([limit] { return IsInMenu() || GetTickCount64() > limit; },
         [attempt] {
             SendKey(VK_ESCAPE, 0);
             SendKey(VK_ESCAPE, KEYEVENTF_KEYUP);
             SendLeftUp();
             // The key goes nowhere when nothing has the focus.
             if (attempt > attemptsByKey) EndMenu();
             RescueLater(attempt + 1);
         });
}

namespace {

void Wait(const Play& play, milliseconds limit = ShortWait) {
    (void)PumpUntil(play.Done, limit);
}

/// Places on a control that differ in what lies there: an item, edges, where buttons are.
constexpr int Places = 6;

}  // namespace

int PlaceCount() {
    return Places;
}

POINT PlaceOn(const LivingScene& scene, int index) {
    const TControl& control = *scene.Target();
    const TRect client = control.GetClientRect();
    const int middleX = client.Right / 2;
    const int middleY = client.Bottom / 2;
    const std::array<TPoint, Places - 1> places{TPoint(9, middleY), TPoint(client.Right - 9, middleY / 2),
                                                TPoint(client.Right - 9, middleY + middleY / 2),
                                                TPoint(middleX / 2, client.Bottom - 4), TPoint(3, 3)};
    const TPoint point =
        index == 0 ? scene.Spot() : control.ClientToScreen(places[static_cast<std::size_t>(index - 1)]);
    return {point.X, point.Y};
}

namespace {

POINT Moved(POINT point, int dx, int dy) {
    return {point.x + dx, point.y + dy};
}

void Hover(const Play& play, int index) {
    const POINT point = PlaceOn(play.Scene, index);
    play.Input.MoveTo(point);
    play.Input.MoveTo(Moved(point, 1, 0));
    Wait(play);
    play.Input.MoveAway();
    Wait(play);
}

void Click(const Play& play, int index, MouseButton button, bool twice) {
    play.Input.MoveTo(PlaceOn(play.Scene, index));
    play.Input.Click(button);
    if (twice) {
        play.Input.Press(button);
        play.Input.Release(button);
    }
    // What dropped down closes by a click elsewhere.
    play.Input.MoveTo({4, 4});
    play.Input.Click();
    play.Input.MoveAway();
    Wait(play);
}

void Drag(const Play& play, int index, int dx, int dy) {
    const POINT from = PlaceOn(play.Scene, index);
    play.Input.Drag(from, Moved(from, dx, dy));
    play.Input.MoveAway();
    Wait(play);
}

/// Drags the component, or the panel, by the framework's own drag and drop.
void DragAndDrop(const Play& play, bool subject) {
    if (subject && dynamic_cast<TCustomForm*>(play.Scene.Control())) return;
    TControl* dragged = subject ? play.Scene.Target() : play.Scene.Other();
    const TPoint start = dragged->ClientToScreen({4, 4});
    const POINT from{start.X, start.Y};
    const POINT to = PlaceOn(play.Scene, 4);
    dragged->BeginDrag(true);
    play.Input.MoveTo(from);
    play.Input.Press();
    play.Input.MoveTo(to);
    play.Input.MoveTo(Moved(to, 2, 0));
    play.Input.Release();
    Wait(play);
}

/// Nobody can give the focus to a form that is hidden.
void FocusTo(const Play& play, TControl* control) {
    auto* window = dynamic_cast<TWinControl*>(control);
    if (window && play.Scene.Form()->GetVisible() && window->CanFocus()) window->SetFocus();
}

void Turn(const Play& play, int notches) {
    play.Input.MoveTo(PlaceOn(play.Scene, 0));
    FocusTo(play, play.Scene.Control());
    play.Input.Wheel(notches);
    Wait(play);
}

void Focus(const Play& play) {
    FocusTo(play, play.Scene.Control() ? play.Scene.Control() : play.Scene.Other());
    PumpAll();
}

void FocusAndLeave(const Play& play) {
    FocusTo(play, play.Scene.Other());
    Focus(play);
    FocusTo(play, play.Scene.Other());
    Wait(play);
}

void PressKeys(const Play& play, std::initializer_list<WORD> held, std::initializer_list<WORD> keys) {
    Focus(play);
    for (const WORD key : keys)
        play.Input.Chord(held, key);
    Wait(play);
}

void DropDown(const Play& play, std::initializer_list<WORD> keys) {
    Focus(play);
    play.Input.Chord({VK_MENU}, VK_DOWN);
    PumpAll();
    for (const WORD key : keys)
        play.Input.KeyPress(key);
    Wait(play);
}

void Type(const Play& play) {
    Focus(play);
    play.Input.Type(L"7a");
    Wait(play);
}

/// Once a menu is open.
void ChooseFirst(EventGenerator& input) {
    DropSteps();
    When(IsInMenu, [&input] {
        input.KeyPress(VK_DOWN);
        input.KeyPress(VK_RETURN);
        RescueLater();
    });
}

/// A context menu, and its first item.
void Choose(const Play& play) {
    play.Input.MoveTo(PlaceOn(play.Scene, 0));
    ChooseFirst(play.Input);
    play.Input.Click(MouseButton::Right);
    Wait(play);
}

/// The first item of the form's own menu.
void ChooseFromBar(const Play& play) {
    ChooseFirst(play.Input);
    SendMessageW(play.Scene.Form()->GetHandle(), WM_SYSCOMMAND, SC_KEYMENU, 0);
    Wait(play);
}

void Resize(const Play& play) {
    TControl* target = play.Scene.Target();
    target->SetBounds(target->GetLeft() + 3, target->GetTop(), target->GetWidth() + 15,
                      target->GetHeight() + 9);
    PumpAll();
    if (play.Scene.Form()) play.Scene.Form()->SetWidth(play.Scene.Form()->GetWidth() + 30);
    Wait(play);
}

void Hide(const Play& play) {
    Focus(play);
    if (play.Scene.Target()) play.Scene.Target()->SetVisible(false);
    PumpAll();
    if (play.Scene.Target()) play.Scene.Target()->SetVisible(true);
    Wait(play);
}

void Disable(const Play& play) {
    Focus(play);
    if (play.Scene.Target()) play.Scene.Target()->SetEnabled(false);
    PumpAll();
    if (play.Scene.Target()) play.Scene.Target()->SetEnabled(true);
    Wait(play);
}

void Paint(const Play& play) {
    play.Scene.Target()->Repaint();
    Wait(play);
}

void Scroll(const Play& play) {
    if (auto* window = dynamic_cast<TWinControl*>(play.Scene.Control()))
        for (const UINT message : {WM_VSCROLL, WM_HSCROLL})
            for (const WPARAM code : {SB_LINEDOWN, SB_PAGEDOWN, SB_TOP, SB_ENDSCROLL})
                if (play.Scene.Subject()) SendMessageW(window->GetHandle(), message, code, 0);
    Wait(play);
}

void ChangeProperties(const Play& play) {
    for (const PropertyChange& change : ChangesOf(*play.Scene.Subject(), *play.Scene.Form())) {
        if (!play.Scene.Subject()) return;
        try {
            change.Apply(*play.Scene.Subject());
        } catch (const Exception& error) {
            // Refused, unless it came from a handler; the others change something.
            if (error.what() == ToUtf8(HandlerErrorText)) throw;
        }
    }
    Wait(play);
}

/// Such as a list whose entries the host draws.
void ChangeStyle(const Play& play) {
    const TPublishedProperty* style = play.Scene.Subject()->ClassType().FindProperty(L"Style");
    if (style && style->Kind() == TPropertyKind::Enumeration)
        style->Set(*play.Scene.Subject(), style->Maximum());
    Wait(play);
}

/// The texts of what stands beside the component.
void ChangeOthers(const Play& play) {
    for (int i = 0; play.Scene.Form() && i < play.Scene.Form()->GetComponentCount(); ++i) {
        TComponent* other = play.Scene.Form()->GetComponent(i);
        const TPublishedProperty* caption = other->ClassType().FindProperty(L"Caption");
        if (caption && other != play.Scene.Subject()) caption->Set(*other, String(L"Other"));
    }
    if (play.Scene.Form())
        (new TAction(play.Scene.Form()))
            ->SetActionList(dynamic_cast<TCustomActionList*>(play.Scene.Subject()));
    Wait(play);
}

void Activate(const Play& play) {
    TForm another(nullptr);
    another.SetBounds(600, 400, 100, 100);
    another.Show();
    PumpAll();
    if (play.Scene.Form()) SetActiveWindow(play.Scene.Form()->GetHandle());
    Wait(play);
}

void Close(const Play& play) {
    SendMessageW(play.Scene.Form()->GetHandle(), WM_CLOSE, 0, 0);
    Wait(play);
}

void ShowModal(const Play& play) {
    TForm dialog(nullptr);
    DropSteps();
    Later([&dialog] { dialog.SetModalResult(mrOk); });
    dialog.ShowModal();
    Wait(play);
}

void TellSystemChanges(const Play& play) {
    for (const UINT message : {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE, WM_FONTCHANGE, WM_THEMECHANGED}) {
        SendMessageW(Application().GetHandle(), message, 0, 0);
        if (play.Scene.Form()) SendMessageW(play.Scene.Form()->GetHandle(), message, 0, 0);
    }
    Wait(play);
}

void Minimize(const Play& play) {
    Application().Minimize();
    PumpAll();
    Application().Restore();
    Wait(play);
}

void ShowHint(const Play& play) {
    TControl* target = play.Scene.Target();
    target->SetHint(L"Hint");
    target->SetShowHint(true);
    const POINT point = PlaceOn(play.Scene, 0);
    play.Input.MoveTo(point);
    Application().SetHint({});
    Application().DoIdle();
    Application().ActivateHint({point.x, point.y});
    Wait(play);
}

void Idle(const Play& play) {
    // The mouse is over it, as hints and actions ask.
    play.Input.MoveTo(PlaceOn(play.Scene, 0));
    Application().DoIdle();
    Wait(play);
}

void AddMouse(std::vector<Step>& steps) {
    for (int i = 0; i < Places; ++i) {
        const std::string at = " at place " + std::to_string(i);
        steps.push_back({"hover" + at, [i](const Play& play) { Hover(play, i); }});
        steps.push_back({"click" + at, [i](const Play& play) { Click(play, i, MouseButton::Left, false); }});
        steps.push_back(
            {"double click" + at, [i](const Play& play) { Click(play, i, MouseButton::Left, true); }});
        steps.push_back({"drag" + at, [i](const Play& play) { Drag(play, i, 30, 4); }});
    }
    for (const int place : {0, 5})
        steps.push_back({"right click at place " + std::to_string(place),
                         [place](const Play& play) { Click(play, place, MouseButton::Right, false); }});
    steps.push_back({"middle click", [](const Play& play) { Click(play, 0, MouseButton::Middle, false); }});
    steps.push_back({"drag far", [](const Play& play) { Drag(play, 1, 0, 300); }});
    steps.push_back({"drag and drop", [](const Play& play) { DragAndDrop(play, true); }});
    steps.push_back({"drop something", [](const Play& play) { DragAndDrop(play, false); }});
    steps.push_back({"wheel down", [](const Play& play) { Turn(play, -1); }});
    steps.push_back({"wheel up", [](const Play& play) { Turn(play, 1); }});
    steps.push_back({"context menu", Choose});
}

void AddKeys(std::vector<Step>& steps) {
    steps.push_back({"focus and leave", FocusAndLeave});
    for (const WORD key : {VK_SPACE, VK_RETURN, VK_ESCAPE, VK_TAB, VK_DELETE, VK_F4, VK_APPS})
        steps.push_back({"key " + std::to_string(key), [key](const Play& play) {
                             PressKeys(play, {}, {key});
                             play.Input.KeyPress(VK_ESCAPE);
                         }});
    steps.push_back({"arrows", [](const Play& play) {
                         PressKeys(play, {}, {VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT});
                     }});
    steps.push_back({"far keys", [](const Play& play) {
                         PressKeys(play, {}, {VK_END, VK_PRIOR, VK_NEXT, VK_HOME});
                     }});
    steps.push_back({"short cut", [](const Play& play) { PressKeys(play, {VK_CONTROL}, {'K'}); }});
    steps.push_back({"short cut in place", [](const Play& play) {
                         FocusTo(play, play.Scene.Place());
                         play.Input.Chord({VK_CONTROL}, 'K');
                     }});
    steps.push_back({"next page", [](const Play& play) { PressKeys(play, {VK_CONTROL}, {VK_TAB}); }});
    steps.push_back({"access key", [](const Play& play) { PressKeys(play, {VK_MENU}, {'S'}); }});
    steps.push_back({"typing", Type});
    steps.push_back({"drop down and choose", [](const Play& play) {
                         DropDown(play, {VK_DOWN, VK_RETURN, VK_ESCAPE});
                     }});
    steps.push_back({"drop down and open", [](const Play& play) {
                         DropDown(play, {VK_END, VK_RIGHT, VK_LEFT, VK_ESCAPE});
                     }});
    steps.push_back({"drop down and leave", [](const Play& play) { DropDown(play, {VK_ESCAPE}); }});
    steps.push_back({"menu bar", ChooseFromBar});
}

void AddProgram(std::vector<Step>& steps) {
    steps.push_back({"resize", Resize});
    steps.push_back({"hide", Hide});
    steps.push_back({"disable", Disable});
    steps.push_back({"paint", Paint});
    steps.push_back({"scroll", Scroll});
    steps.push_back({"activate", Activate});
    steps.push_back({"idle", Idle});
    steps.push_back({"change properties", ChangeProperties});
    steps.push_back({"change style", ChangeStyle});
    steps.push_back({"modal dialog", ShowModal});
    steps.push_back({"system changes", TellSystemChanges});
    steps.push_back({"minimize", Minimize});
    steps.push_back({"hint", ShowHint});
    steps.push_back({"change others", ChangeOthers});
    steps.push_back({"close", Close});
    steps.push_back({"wait", [](const Play& play) { Wait(play, LongWait); }});
}

}  // namespace

bool IsCovered(const LivingScene& scene) {
    const auto* window = dynamic_cast<const TWinControl*>(scene.Control());
    for (int i = 0; window && i < Places; ++i)
        if (WindowFromPoint(PlaceOn(scene, i)) == const_cast<TWinControl*>(window)->GetHandle()) return false;
    return window;
}

const std::vector<Step>& Steps() {
    static const std::vector<Step> all = [] {
        std::vector<Step> steps{{"show", [](const Play& play) { Wait(play); }}};
        AddMouse(steps);
        AddKeys(steps);
        AddProgram(steps);
        return steps;
    }();
    return all;
}

void RunStep(const Step& step, const Play& play, const std::function<void()>& shown) {
    play.Input.MoveAway();
    play.Scene.Show();
    if (!play.Scene.Subject()) return;
    shown();
    RescueLater();
    step.Run(play);
    DropSteps();
    PumpAll();
}

void WarmUpScenes() {
    static bool done = false;
    if (std::exchange(done, true)) return;
    EventGenerator input;
    for (const wchar_t* name : {L"TMainMenu", L"TPopupMenu", L"TEdit"})
        for (const Step& step : Steps()) {
            if (step.Name != "menu bar" && step.Name != "context menu") continue;
            LivingScene other(TForm::StaticClass());
            LivingScene scene(FindClass(name));
            other.Show();
            RunStep(step, {scene, input, [] { return false; }}, [] {});
        }
}

}  // namespace test
