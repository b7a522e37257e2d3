#include "bench/Bench.h"
#include "buttons/UnitQV7SkinButtonMsgDlg.h"
#include "indicators/UnitQV7SkinGauges.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/stdctrls/Button.h"

#include <commctrl.h>

namespace {

using namespace qv7skin;

/// A shown form with a gauge beside a progress bar of the system, both 100 x 100 pixels.
struct TGaugeAndSystem {
    TGaugeAndSystem() {
        Form.SetBounds(100, 100, 300, 200);
        Gauge = new TQV7SkinGauge(&Form);
        Gauge->SetBounds(10, 10, 100, 100);
        Gauge->SetParent(&Form);
        Form.Show();
        System = CreateWindowExW(0, PROGRESS_CLASSW, L"", WS_CHILD | WS_VISIBLE, 120, 10, 100, 100,
                                 Form.GetHandle(), nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(System, PBM_SETPOS, 42, 0);
        Gauge->SetProgress(42);
        Form.Update();
    }
    void RepaintSystem() const {
        InvalidateRect(System, nullptr, TRUE);
        UpdateWindow(System);
    }

    TForm Form{nullptr};
    TQV7SkinGauge* Gauge;
    HWND System;
};

void MeasureKinds(bench::Runner& runner) {
    const struct {
        TQV7SkinGaugeKind Kind;
        const char* Name;
    } kinds[] = {{gkHorizontalBar, "gauge 100x100 painted anew: bar"},
                 {gkPie, "gauge 100x100 painted anew: pie"},
                 {gkNeedle, "gauge 100x100 painted anew: needle"},
                 {gkText, "gauge 100x100 painted anew: text"}};
    for (const auto& kind : kinds) {
        if (!runner.Wants(kind.Name)) continue;
        TGaugeAndSystem both;
        both.Gauge->SetKind(kind.Kind);
        runner.Row(
            kind.Name, "progress bar of the system", {.Ratio = 1.0}, [&] { both.Gauge->Repaint(); },
            [&] { both.RepaintSystem(); });
    }
}

/// A thousand small steps that leave the percentage where it is.
void MeasureSteps(bench::Runner& runner) {
    constexpr int steps = 1000;
    const char* const set = "gauge: 1000 SetProgress without a new percentage";
    const char* const add = "gauge: 1000 AddProgress without a new percentage";
    if (!runner.Wants(set) && !runner.Wants(add)) return;
    TGaugeAndSystem both;
    both.Gauge->SetMaxValue(10'000'000);
    runner.Row(
        set, "one repaint", {.Ratio = 1.0},
        [&] {
            for (int i = 0; i < steps; ++i)
                both.Gauge->SetProgress(i % 2);
        },
        [&] { both.Gauge->Repaint(); });
    runner.Row(
        add, "1000 repaints", {.Ratio = 1.1},
        [&] {
            for (int i = 0; i < steps; ++i)
                both.Gauge->AddProgress(i % 2 ? 1 : -1);
        },
        [&] {
            for (int i = 0; i < steps; ++i)
                both.Gauge->Repaint();
        });
}

void MeasureMsgDlgButton(bench::Runner& runner) {
    const char* const change = "message-dialog button: change of state, on screen";
    const char* const anew = "message-dialog button: painted anew";
    if (!runner.Wants(change) && !runner.Wants(anew)) return;
    TForm form(nullptr);
    form.SetBounds(100, 100, 400, 250);
    auto* ours = new TQV7SkinButtonMsgDlg(&form);
    ours->SetBounds(10, 10, 300, 60);
    ours->SetCaption(L"Speichern");
    ours->GetDescription().Add(L"Legt die Datei unter ihrem Namen ab.");
    ours->SetParent(&form);
    auto* peer = new TButton(&form);
    peer->SetBounds(10, 80, 300, 60);
    peer->SetCaption(L"Speichern");
    peer->SetParent(&form);
    form.Show();
    form.Update();
    const HWND system = peer->GetHandle();
    bool down = false, pushed = false;
    runner.Row(
        change, "push button of the system, 300x60", {.Ratio = 0.2}, [&] { ours->SetDown(down = !down); },
        [&] { SendMessageW(system, BM_SETSTATE, pushed = !pushed, 0); });
    runner.Row(
        anew, "push button of the system, 300x60", {.Ratio = 1.0}, [&] { ours->Repaint(); },
        [&] {
            InvalidateRect(system, nullptr, TRUE);
            UpdateWindow(system);
        });
}

const bench::Suite Indicators("indicators", [](bench::Runner& runner) {
    MeasureKinds(runner);
    MeasureSteps(runner);
    MeasureMsgDlgButton(runner);
});

}  // namespace
