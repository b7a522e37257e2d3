#include <memory>
#include <string>

#include "bench/Bench.h"
#include "bench/Scene.h"
#include "buttons/UnitQV7SkinButton.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/stdctrls/Button.h"

namespace {

using namespace qv7skin;

constexpr int Columns = 5;
constexpr int Rows = 8;

TRect CellBounds(int index) {
    return TRect::OfSize(10 + index % Columns * 110, 10 + index / Columns * 35, 100, 25);
}

String CellCaption(int index) {
    return L"Button " + IntToStr(index + 1);
}

// --- the start of a process

template <class Button>
void ShowFormOf() {
    auto* form = new TForm(nullptr);
    form->SetBounds(100, 100, 600, 350);
    for (int i = 0; i < Columns * Rows; ++i) {
        auto* button = new Button(form);
        button->SetBoundsRect(CellBounds(i));
        button->SetCaption(CellCaption(i));
        button->SetParent(form);
    }
    form->Show();
}

void ShowPlainWindow() {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.lpszClassName = L"PlainWindow";
    windowClass.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    RegisterClassW(&windowClass);
    const HWND window = CreateWindowW(L"PlainWindow", L"", WS_OVERLAPPEDWINDOW, 100, 100, 600, 350, nullptr,
                                      nullptr, nullptr, nullptr);
    for (int i = 0; i < Columns * Rows; ++i) {
        const TRect r = CellBounds(i);
        CreateWindowW(L"BUTTON", CellCaption(i).c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP, r.Left, r.Top,
                      r.Width(), r.Height(), window, nullptr, nullptr, nullptr);
    }
    ShowWindow(window, SW_SHOW);
}

const bench::Scene SkinScene("skin-buttons", ShowFormOf<TCustomQV7SkinButton>);
const bench::Scene GlowScene("glow-buttons", ShowFormOf<TQV7SkinButton>);
const bench::Scene SystemScene("system-buttons", ShowFormOf<TButton>);
const bench::Scene PlainScene("plain-buttons", ShowPlainWindow);

void MeasureStart(bench::Runner& runner) {
    runner.Row("start to the first painted form, 40 skin buttons", "the same form, 40 system buttons",
               {.Ratio = 1.0}, bench::Scene::InProcess("skin-buttons"),
               bench::Scene::InProcess("system-buttons"));
    runner.Row("start to the first painted form, 40 glow buttons", "the same form, 40 system buttons",
               {.Ratio = 1.0}, bench::Scene::InProcess("glow-buttons"),
               bench::Scene::InProcess("system-buttons"));
    runner.Row("start to the first painted form, 40 skin buttons", "a bare window, 40 system buttons", {},
               bench::Scene::InProcess("skin-buttons"), bench::Scene::InProcess("plain-buttons"));
}

// --- repainting

/// A shown form with a button of ours beside one of the system.
template <class Button>
struct TSideBySide {
    TSideBySide() {
        Form.SetBounds(100, 100, 300, 100);
        Ours = Add<Button>(10);
        System = Add<TButton>(120);
        Form.Show();
        Form.Update();
    }
    template <class T>
    T* Add(int left) {
        T* button = new T(&Form);
        button->SetBounds(left, 10, 100, 25);
        button->SetCaption(L"Button");
        button->SetParent(&Form);
        return button;
    }

    TForm Form{nullptr};
    Button* Ours;
    TButton* System;
};

template <class Button>
void MeasureRepaint(bench::Runner& runner, const std::string& name) {
    const std::string change = name + ": change of state, on screen", anew = name + ": painted anew";
    if (!runner.Wants(change) && !runner.Wants(anew)) return;
    TSideBySide<Button> side;
    const HWND system = side.System->GetHandle();
    bool down = false, pushed = false;
    runner.Row(
        change, "push button of the system", {.Ratio = 0.1}, [&] { side.Ours->SetDown(down = !down); },
        [&] { SendMessageW(system, BM_SETSTATE, pushed = !pushed, 0); });
    runner.Row(
        anew, "push button of the system", {.Ratio = 1.0}, [&] { side.Ours->Repaint(); },
        [&] {
            InvalidateRect(system, nullptr, TRUE);
            UpdateWindow(system);
        });
}

const bench::Suite Buttons("buttons", [](bench::Runner& runner) {
    MeasureRepaint<TCustomQV7SkinButton>(runner, "skin button");
    MeasureRepaint<TQV7SkinButton>(runner, "glow button");
    MeasureStart(runner);
});

}  // namespace
