#include <memory>
#include <string>

#include "bench/Bench.h"
#include "menus/MenuGradient.h"
#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/Gradients.h"
#include "platform/vcl/menus/MenuMaking.h"

namespace {

using namespace qv7skin;

constexpr int ItemCount = 500;
constexpr UINT CloseMessage = WM_APP + 1;

LRESULT CALLBACK CloserProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == CloseMessage) EndMenu();
    return DefWindowProcW(window, message, wParam, lParam);
}

/// A window that owns menus, and that closes them with the first message that their loop takes from the
/// queue: they have been painted by then.
class TMenuCloser {
public:
    TMenuCloser() {
        WNDCLASSW description{};
        description.lpfnWndProc = CloserProcedure;
        description.lpszClassName = L"TBenchMenuCloser";
        RegisterClassW(&description);
        FWindow = CreateWindowExW(0, description.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10,
                                  nullptr, nullptr, nullptr, nullptr);
    }
    TMenuCloser(const TMenuCloser&) = delete;
    TMenuCloser& operator=(const TMenuCloser&) = delete;
    ~TMenuCloser() {
        DestroyWindow(FWindow);
        UnregisterClassW(L"TBenchMenuCloser", nullptr);
    }
    [[nodiscard]] HWND Window() const { return FWindow; }
    void CloseNext() const { PostMessageW(FWindow, CloseMessage, 0, 0); }

private:
    HWND FWindow;
};

String CaptionOf(int index) {
    return L"Menu item " + IntToStr(index + 1);
}

/// The same captions and short cuts as a menu of the skin and as one of the system.
class TTwoMenus {
public:
    TTwoMenus() : Ours(nullptr), FSystem(CreatePopupMenu()) {
        Ours.SetAutoHotkeys(maManual);
        for (int i = 0; i < ItemCount; ++i) {
            TMenuItem* item = NewItem(CaptionOf(i), ShortCut('A', {ssCtrl}), false, true, nullptr, 0, {});
            item->SetHint(L"What the item does, in a line of its own");
            Ours.GetItems().Add(item);
            AppendMenuW(FSystem, MF_STRING, static_cast<UINT_PTR>(i + 1),
                        (CaptionOf(i) + L"\tCtrl+A").c_str());
        }
    }
    TTwoMenus(const TTwoMenus&) = delete;
    TTwoMenus& operator=(const TTwoMenus&) = delete;
    ~TTwoMenus() { DestroyMenu(FSystem); }

    void OpenOurs() {
        FCloser.CloseNext();
        Ours.Popup(100, 50);
    }
    void OpenSystems() {
        FCloser.CloseNext();
        TrackPopupMenuEx(FSystem, TPM_RIGHTBUTTON, 100, 50, FCloser.Window(), nullptr);
    }

    TQV7SkinPopupMenu Ours;

private:
    TMenuCloser FCloser;
    HMENU FSystem;
};

void MeasureOpening(bench::Runner& runner) {
    const std::string name = "menu of 500 items with descriptions: open, paint, close";
    if (!runner.Wants(name)) return;
    TTwoMenus menus;
    runner.Row(
        name, "the same menu of the system", {.Ratio = 2}, [&] { menus.OpenOurs(); },
        [&] { menus.OpenSystems(); });
}

void MeasureGradient(bench::Runner& runner, const std::string& surface, HDC dc) {
    for (const TSize size : {TSize(218, 20), TSize(300, 40)}) {
        const TRect area{0, 0, size.Width, size.Height};
        TCanvas canvas;
        canvas.SetHandle(dc);
        runner.Row(
            "menu gradient, " + std::to_string(size.Width) + " x " + std::to_string(size.Height) + ", " +
                surface,
            "GradientFill of the same area", {.Ratio = 2},
            [&] { DrawGradientBands(dc, area, 256, 0x00EFE8E4, 0x00DEC5B8, gdVertical); },
            [&] { FillGradient(canvas, area, 0x00EFE8E4, 0x00DEC5B8, gdVertical); });
        canvas.SetHandle(nullptr);
    }
}

const bench::Suite Menus("menus", [](bench::Runner& runner) {
    MeasureOpening(runner);
    const TMenuCloser window;
    SetWindowPos(window.Window(), nullptr, 0, 0, 400, 100, SWP_NOMOVE | SWP_NOZORDER);
    const TWindowDC dc(window.Window());
    MeasureGradient(runner, "window", dc.Get());
    TBitmap bitmap(400, 100, pf24bit);
    MeasureGradient(runner, "24 bits", bitmap.GetCanvas().GetHandle());
});

}  // namespace
