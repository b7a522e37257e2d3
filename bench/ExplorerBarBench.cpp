#include <algorithm>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "bench/Bench.h"
#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/ScrolledPaintBox.h"

#include <commctrl.h>

namespace {

using namespace qv7skin;

constexpr int LinksPerGroup = 50;
constexpr int Width = 218;
constexpr int Height = 300;

String GroupTitle(int group) {
    return L"Group " + IntToStr(group + 1);
}

String LinkCaption(int link) {
    return L"Open document " + IntToStr(link + 1);
}

/// A shown form with an explorer bar of groups of 50 links.
class TBarScene {
public:
    /// Scenes that live together must not cover each other.
    explicit TBarScene(int groups, int left = 100) {
        Form.SetBorderStyle(bsNone);
        Form.SetBounds(left, 100, 300, 320);
        Form.Show();
        Bar = new TQV7SkinExplorerBar(&Form);
        Bar->SetAnimate(false);
        Fill(groups);
        Bar->SetParent(&Form);
        Bar->Repaint();
    }
    ~TBarScene() { Form.Free(); }

    void Fill(int groups) {
        Bar->BeginUpdate();
        for (int g = 0; g < groups; ++g) {
            TQV7SkinExplorerItems& items = Bar->GetGroups().Add(GroupTitle(g), false)->GetItems();
            for (int i = 0; i < LinksPerGroup; ++i)
                items.Add(new TQV7SkinExplorerItemLink(LinkCaption(i), String()));
        }
        Bar->EndUpdate();
    }
    TScrolledPaintBox& Box() { return Bar->GetPaintBox(); }
    /// A mouse move to one of the first links, as the paint box tells it.
    void HoverOver(int link) {
        const TRect place = Bar->GetGroups()[0]->GetItems()[link]->ClipRect();
        Box().OnMouseMove(&Box(), {}, place.Left + 3, place.Top + 3);
    }
    /// The same as the system sends it.
    void SendMoveTo(int link) {
        const TRect place = Bar->GetGroups()[0]->GetItems()[link]->ClipRect();
        ::SendMessageW(Box().GetHandle(), WM_MOUSEMOVE, 0, MAKELPARAM(place.Left + 3, place.Top + 3));
    }
    void ScrollBy(int rows) {
        const TRect place = Bar->GetGroups()[0]->GetItems()[0]->ClipRect();
        TControlScrollBar& scrollBar = Bar->GetVertScrollBar();
        scrollBar.SetPosition(scrollBar.GetPosition() + rows * place.Height());
    }

    TForm& Form = *new TForm(nullptr);
    TQV7SkinExplorerBar* Bar = nullptr;
};

/// The texts that a bar shows at its start, drawn on a bitmap like its buffer.
class TPlainTexts {
public:
    explicit TPlainTexts(TBarScene& scene) : FScene(scene), FBitmap(Width, Height, pf24bit) {
        TCanvas& canvas = FBitmap.GetCanvas();
        canvas.SetFont(scene.Bar->GetFont());
        canvas.GetFont().SetColor(0x00D78112);
        canvas.GetBrush().SetStyle(bsClear);
        FRowHeight = canvas.TextHeight(L"A") + 1;
    }
    void Draw(int rows) {
        for (int i = 0; i < rows; ++i)
            FBitmap.GetCanvas().TextOut(5, 29 + i * FRowHeight, LinkCaption(i));
    }
    void DrawAll() { Draw((Height - 29) / FRowHeight + 1); }
    void CopyToWindow() {
        const HWND window = FScene.Box().GetHandle();
        const HDC dc = ::GetDC(window);
        ::BitBlt(dc, 0, 0, Width, Height, FBitmap.GetSourceDC(), 0, 0, SRCCOPY);
        ::ReleaseDC(window, dc);
    }

private:
    TBarScene& FScene;
    TBitmap FBitmap;
    int FRowHeight = 0;
};

/// The tree view of the system with the same texts.
class TTreeScene {
public:
    explicit TTreeScene(HWND parent) : FParent(parent) {}
    ~TTreeScene() { Close(); }

    void Open(int groups) {
        Window =
            ::CreateWindowExW(0, WC_TREEVIEWW, L"", WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT,
                              0, 0, Width, Height, FParent, nullptr, nullptr, nullptr);
        ::SendMessageW(Window, WM_SETREDRAW, FALSE, 0);
        for (int g = 0; g < groups; ++g) {
            const HTREEITEM group = Insert(TVI_ROOT, GroupTitle(g));
            for (int i = 0; i < LinksPerGroup; ++i)
                Insert(group, LinkCaption(i));
            ::SendMessageW(Window, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(group));
            if (!First) First = group;
        }
        ::SendMessageW(Window, WM_SETREDRAW, TRUE, 0);
        Repaint();
    }
    void Repaint() {
        ::InvalidateRect(Window, nullptr, TRUE);
        ::UpdateWindow(Window);
    }
    void Close() {
        if (Window) ::DestroyWindow(Window);
        Window = nullptr;
        First = nullptr;
    }
    void Scroll(WORD code) {
        for (int i = 0; i < 3; ++i)
            ::SendMessageW(Window, WM_VSCROLL, code, 0);
        ::UpdateWindow(Window);
    }
    void Toggle() {
        ::SendMessageW(Window, TVM_EXPAND, TVE_TOGGLE, reinterpret_cast<LPARAM>(First));
        ::UpdateWindow(Window);
    }

    HWND Window = nullptr;
    HTREEITEM First = nullptr;

private:
    HTREEITEM Insert(HTREEITEM parent, const String& text) {
        TVINSERTSTRUCTW item{};
        item.hParent = parent;
        item.hInsertAfter = TVI_LAST;
        item.item.mask = TVIF_TEXT;
        item.item.pszText = const_cast<wchar_t*>(text.c_str());
        return reinterpret_cast<HTREEITEM>(
            ::SendMessageW(Window, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
    }
    HWND FParent;
};

TForm& MakeForm() {
    auto& form = *new TForm(nullptr);
    form.SetBorderStyle(bsNone);
    form.SetBounds(100, 100, 400, 320);
    form.Show();
    return form;
}

/// The least that any control with a scroll bar costs: a window of the system without content, whose scroll
/// bar gets its range before it shows, so that it is painted once.
void ShowEmptyWindow(HWND parent) {
    static constexpr wchar_t Class[] = L"BenchEmptyWindow";
    static const ATOM registered = [] {
        WNDCLASSW looks{};
        looks.lpfnWndProc = ::DefWindowProcW;
        looks.lpszClassName = Class;
        looks.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        return ::RegisterClassW(&looks);
    }();
    bench::Use(&registered);
    const HWND window = ::CreateWindowExW(0, Class, L"", WS_CHILD | WS_VSCROLL, 0, 0, Width, Height, parent,
                                          nullptr, nullptr, nullptr);
    const SCROLLINFO range{sizeof range, SIF_RANGE | SIF_PAGE | SIF_POS, 0, 50 * Height, Height, 0, 0};
    ::SetScrollInfo(window, SB_VERT, &range, TRUE);
    ::ShowWindow(window, SW_SHOWNA);
    ::UpdateWindow(window);
    ::DestroyWindow(window);
}

void MeasureBuilding(bench::Runner& runner, int groups, const std::string& size, bench::Aim aim) {
    const std::string name = "explorer bar of " + size + ": build and first paint";
    if (!runner.Wants(name)) return;
    TForm& form = MakeForm();
    TTreeScene tree(form.GetHandle());
    const std::vector<double> times = bench::Runner::Times({
        [&] {
            auto* bar = new TQV7SkinExplorerBar(nullptr);
            bar->SetAnimate(false);
            bar->BeginUpdate();
            for (int g = 0; g < groups; ++g) {
                TQV7SkinExplorerItems& items = bar->GetGroups().Add(GroupTitle(g), false)->GetItems();
                for (int i = 0; i < LinksPerGroup; ++i)
                    items.Add(new TQV7SkinExplorerItemLink(LinkCaption(i), String()));
            }
            bar->SetParent(&form);
            bar->EndUpdate();
            bar->Free();
        },
        [&] { ShowEmptyWindow(form.GetHandle()); },
        [&] {
            tree.Open(groups);
            tree.Close();
        },
    });
    const std::string peer = "the system's tree view";
    runner.Add({name, peer, aim, times[0], times[2]});
    runner.Add({name + ", an empty window alone", peer, {}, times[1], times[2]});
    runner.Add({name + ", beyond an empty window", peer, aim, times[0] - times[1], times[2]});
    form.Free();
}

bool WantsAny(bench::Runner& runner, const std::string& bar, std::initializer_list<const char*> rows) {
    return std::ranges::any_of(rows, [&](const char* row) { return runner.Wants(bar + row); });
}

void MeasureWorking(bench::Runner& runner, int groups, const std::string& size) {
    const std::string bar = "explorer bar of " + size + ": ";
    // Preparing takes longer than most rows.
    if (!WantsAny(runner, bar,
                  {"full repaint", "hover to the next link", "hover, from the system's message on",
                   "scroll by three rows", "open or close a group"}))
        return;
    TBarScene scene(groups);
    TPlainTexts texts(scene);
    TTreeScene tree(scene.Form.GetHandle());
    runner.Row(
        bar + "full repaint", "the texts of the visible rows and one copy to the window", {.Ratio = 2.0},
        [&] { scene.Bar->Repaint(); },
        [&] {
            texts.DrawAll();
            texts.CopyToWindow();
        });
    int hovered = 0;
    runner.Row(
        bar + "hover to the next link", "the texts of two rows", {.Ratio = 4.0},
        [&] { scene.HoverOver(hovered = (hovered + 1) % 10); }, [&] { texts.Draw(2); });
    runner.Row(
        bar + "hover, from the system's message on", "a mouse move that changes nothing", {},
        [&] { scene.SendMoveTo(hovered = (hovered + 1) % 10); }, [&] { scene.SendMoveTo(hovered); });
    tree.Open(groups);
    bool down = false;
    bool treeDown = false;
    runner.Row(
        bar + "scroll by three rows", "the system's tree view", {},
        [&] { scene.ScrollBy((down = !down) ? 3 : -3); },
        [&] { tree.Scroll((treeDown = !treeDown) ? SB_LINEDOWN : SB_LINEUP); });
    runner.Row(
        bar + "open or close a group", "the system's tree view", {},
        [&] { scene.Bar->GetGroups()[0]->OpenClose(); }, [&] { tree.Toggle(); });
}

/// Costs that must not depend on the number of items.
void MeasureGrowth(bench::Runner& runner) {
    if (!WantsAny(runner, "explorer bar of 10,000 links: ", {"hover", "scroll"})) return;
    TBarScene many(200);
    TBarScene few(20, 500);
    int inMany = 0;
    int inFew = 0;
    runner.Row(
        "explorer bar of 10,000 links: hover", "1,000 links", {.Ratio = 1.25},
        [&] { many.HoverOver(inMany = (inMany + 1) % 10); },
        [&] { few.HoverOver(inFew = (inFew + 1) % 10); });
    bool manyDown = false;
    bool fewDown = false;
    runner.Row(
        "explorer bar of 10,000 links: scroll", "1,000 links", {.Ratio = 1.25},
        [&] { many.ScrollBy((manyDown = !manyDown) ? 3 : -3); },
        [&] { few.ScrollBy((fewDown = !fewDown) ? 3 : -3); });
}

const bench::Suite Bars("explorer bar", [](bench::Runner& runner) {
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_TREEVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    MeasureBuilding(runner, 20, "1,000 links", {.Ratio = 0.2});
    MeasureBuilding(runner, 200, "10,000 links", {});
    MeasureWorking(runner, 20, "1,000 links");
    MeasureWorking(runner, 200, "10,000 links");
    MeasureGrowth(runner);
});

}  // namespace
