#include <memory>
#include <string>

#include "bench/Bench.h"
#include "header/UnitQV7SkinHeaderChevron.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinTabControl.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/forms/Form.h"
#include "skin/surfaces/FlickerFreePaintBox.h"

#include <commctrl.h>

namespace {

using namespace qv7skin;

constexpr int StripWidth = 800;
constexpr int StripHeight = 21;

String Caption(int index) {
    return L"T" + IntToStr(index + 1);
}

/// A tab control that is loaded without a form file.
class TBenchTabs : public TQV7SkinSimpleTabControl {
public:
    using TQV7SkinSimpleTabControl::Loaded;
    using TQV7SkinSimpleTabControl::TQV7SkinSimpleTabControl;
};

/// A shown form with tabs of ours above tabs of the system.
class TTabRows {
public:
    explicit TTabRows(int count) {
        Form.SetBounds(50, 50, StripWidth + 40, 140);
        Ours = new TBenchTabs(&Form);
        Ours->SetBounds(0, 10, StripWidth, StripHeight);
        Ours->SetParent(&Form);
        Ours->Loaded();
        Ours->BeginUpdate();
        for (int i = 0; i < count; ++i)
            Ours->GetItems().Add(new TQV7SkinHeaderItemTab(bckgrndStandard, Caption(i)));
        Ours->EndUpdate();
        Ours->SetSelectedItem(Ours->GetItems()[0]);
        Form.Show();
        Form.Update();
        MakeSystemTabs(count);
    }

    void RepaintSystem() const {
        InvalidateRect(System, nullptr, TRUE);
        UpdateWindow(System);
    }

    TForm Form{nullptr};
    TBenchTabs* Ours = nullptr;  // the form's
    HWND System = nullptr;

private:
    void MakeSystemTabs(int count) {
        const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_TAB_CLASSES};
        InitCommonControlsEx(&classes);
        System = CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, 0, 40,
                                 StripWidth, StripHeight, Form.GetHandle(), nullptr, nullptr, nullptr);
        SendMessageW(System, WM_SETFONT, reinterpret_cast<WPARAM>(Form.GetFont().GetHandle()), FALSE);
        for (int i = 0; i < count; ++i) {
            String text = Caption(i);
            TCITEMW item{};
            item.mask = TCIF_TEXT;
            item.pszText = text.data();
            SendMessageW(System, TCM_INSERTITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
        }
        UpdateWindow(System);
    }
};

void MeasureTwenty(bench::Runner& runner) {
    if (!runner.Wants("20 tabs: full repaint") && !runner.Wants("20 tabs: hover to the next tab")) return;
    const TTabRows rows(20);
    TBenchTabs& ours = *rows.Ours;
    runner.Row(
        "20 tabs: full repaint", "tab control of the system", {.Ratio = 0.1}, [&] { ours.Repaint(); },
        [&] { rows.RepaintSystem(); });
    int hovered = 0;
    const auto hoverNext = [&] {
        const int x = ours.GetItemRect(hovered = hovered % 19 + 1).Left + 10;
        ours.DoPaintboxMouseMove(&ours.GetPaintBox(), {}, x, 10);
    };
    runner.Row("20 tabs: hover to the next tab", "full repaint of ours", {.Ratio = 0.2}, hoverNext,
               [&] { ours.Repaint(); });
    runner.Row("20 tabs: hover to the next tab", "full repaint of the system's", {.Ratio = 0.02}, hoverNext,
               [&] { rows.RepaintSystem(); });
}

void MeasureThousand(bench::Runner& runner) {
    if (!runner.Wants("1,000 tabs: full repaint") && !runner.Wants("1,000 tabs: scroll by one") &&
        !runner.Wants("1,000 tabs: hit test"))
        return;
    const TTabRows few(40), many(1000);
    TBenchTabs& ours = *many.Ours;
    ours.ScrollBy(500);
    few.Ours->ScrollBy(1);
    int step = 1;
    const auto scroll = [&](TBenchTabs& tabs) {
        tabs.ScrollBy(step = -step);
        tabs.ScrollBy(step = -step);
    };
    runner.Row(
        "1,000 tabs: full repaint", "the same of 40 tabs", {.Ratio = 1.2}, [&] { ours.Repaint(); },
        [&] { few.Ours->Repaint(); });
    runner.Row(
        "1,000 tabs: scroll by one and back", "the same of 40 tabs", {.Ratio = 1.2}, [&] { scroll(ours); },
        [&] { scroll(*few.Ours); });
    int x = 0;
    runner.Row(
        "1,000 tabs: hit test", "TCM_HITTEST of the system", {.Ratio = 1.0},
        [&] {
            const int index = ours.GetItemIndexAt(x = (x + 7) % 700, 10);
            bench::Use(&index);
        },
        [&] {
            TCHITTESTINFO hit{{x = (x + 7) % 700, 10}, 0};
            const LRESULT index = SendMessageW(many.System, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
            bench::Use(&index);
        });
    runner.Row(
        "1,000 tabs: full repaint", "tab control of the system", {.Ratio = 0.1}, [&] { ours.Repaint(); },
        [&] { many.RepaintSystem(); });
}

const bench::Suite Header("header", [](bench::Runner& runner) {
    MeasureTwenty(runner);
    MeasureThousand(runner);
});

}  // namespace
