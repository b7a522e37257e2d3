#pragma once

#include <string>
#include <vector>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/UnitQV7SkinExplorerBarFocus.h"
#include "explorerbar/UnitQV7SkinExplorerGroups.h"
#include "explorerbar/UnitQV7SkinExplorerItems.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Canvas.h"
#include "skin/surfaces/Loaders.h"
#include "skin/surfaces/ScrolledPaintBox.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace qv7skin::probes {

using TLink = TQV7SkinExplorerItemLink;
using TCheck = TQV7SkinExplorerItemCheckBox;

/// An explorer bar of 218 x 300 at the top left corner of the form, without animations.
class ExplorerBarTest : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        FBar = new TQV7SkinExplorerBar(nullptr);
        FBar->SetAnimate(false);
        FBar->SetParent(&Form());
    }
    [[nodiscard]] TQV7SkinExplorerBar& Bar() { return *FBar; }
    [[nodiscard]] TScrolledPaintBox& Box() { return FBar->GetPaintBox(); }
    TQV7SkinExplorerGroup& Group(int index) { return *FBar->GetGroups()[index]; }
    TQV7SkinExplorerItemCustom& Item(int group, int item) { return *Group(group).GetItems()[item]; }
    [[nodiscard]] int ScrollPos() { return FBar->GetVertScrollBar().GetPosition(); }

    /// Groups of links with short captions.
    void Fill(int groups, int links) {
        FBar->BeginUpdate();
        for (int g = 0; g < groups; ++g) {
            auto* group = FBar->GetGroups().Add(L"Group " + IntToStr(g), false);
            for (int i = 0; i < links; ++i)
                group->GetItems().Add(new TLink(L"Link " + IntToStr(i), String()));
        }
        FBar->EndUpdate();
        test::PumpAll();
    }
    template <class T>
    T& AddTo(int group, T* item) {
        Group(group).GetItems().Add(item);
        return *item;
    }
    /// The middle of what a rectangle of the content shows, in the window of the paint box.
    [[nodiscard]] POINT OnScreen(const TRect& content) {
        const TPoint p = Box().ClientToScreen({content.Left + 2, (content.Top + content.Bottom) / 2});
        return {p.X, p.Y};
    }
    void MoveTo(TQV7SkinExplorerItemCustom& item) { Input.MoveTo(OnScreen(item.ClipRect())); }
    void MoveToHeader(int group) { Input.MoveTo(OnScreen(Group(group).HeaderRect())); }
    void Click(TQV7SkinExplorerItemCustom& item) {
        MoveTo(item);
        Input.Press();
        Input.Release();
    }
    void ClickHeader(int group) {
        MoveToHeader(group);
        Input.Press();
        Input.Release();
    }
    [[nodiscard]] bool HasScrollBar() {
        return (GetWindowLongW(FBar->GetHandle(), GWL_STYLE) & WS_VSCROLL) != 0;
    }
    /// What the whole bar shows.
    [[nodiscard]] test::Pixels Shown() {
        test::PumpAll();
        return test::ReadClient(FBar->GetHandle());
    }
    /// What the groups paint on a bitmap of the whole height.
    [[nodiscard]] std::unique_ptr<TBitmap> WholePicture() {
        auto bitmap = std::make_unique<TBitmap>(FBar->GetWidth(), Box().GetHeight(), pf24bit);
        bitmap->GetCanvas().SetFont(FBar->GetFont());
        bitmap->GetCanvas().GetBrush().SetColor(clWhite);
        bitmap->GetCanvas().FillRect({0, 0, bitmap->GetWidth(), bitmap->GetHeight()});
        int left = 0;
        int top = 0;
        for (int g = 0; g < FBar->GetGroups().GetCount(); ++g)
            if (Group(g).GetVisible()) Group(g).Draw(*bitmap, left, top);
        return bitmap;
    }
    /// Whether the bar shows exactly the rows of that picture at its scroll position.
    testing::AssertionResult ShowsRowsOf(TBitmap& whole) {
        const test::Pixels shown = test::ReadClient(FBar->GetHandle());
        const int first = ScrollPos();
        return SamePixels(shown, [&](int x, int y) {
            if (y + first >= whole.GetHeight()) return COLORREF{clWhite};
            return static_cast<COLORREF>(whole.GetCanvas().GetPixel(x, y + first));
        });
    }
    /// Notes what happens to an item in `Log`.
    void Watch(TQV7SkinExplorerItemCustom& item, const std::string& name) {
        item.OnClick = [this, name](TObject*) { Log.push_back("click " + name); };
        item.OnEnter = TNotifyEvent([this, name](TObject*) { Log.push_back("enter " + name); });
        item.OnLeave = TNotifyEvent([this, name](TObject*) { Log.push_back("leave " + name); });
    }
    [[nodiscard]] int LineHeight() { return Box().GetBuffer().GetCanvas().TextHeight(L"A"); }

    std::vector<std::string> Log;

private:
    TQV7SkinExplorerBar* FBar = nullptr;  // the form's
};

}  // namespace qv7skin::probes
