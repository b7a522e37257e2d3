#pragma once

#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinTabControl.h"
#include "header/UnitQV7SkinToolbar.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "skin/surfaces/FlickerFreePaintBox.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace qv7skin::probes {

inline constexpr TColor StripColor = 0x00F0EAE7;
inline constexpr TColor NoPixel = 0x00FF00FF;

/// A resource bitmap as a picture.
[[nodiscard]] test::Pixels Piece(const String& name);
/// Copies `piece` to (x, y), repeated to fill a width and height (0: its own).
void Put(test::Pixels& picture, const test::Pixels& piece, int x, int y, int width = 0, int height = 0);
/// What a tab's background is by its rule: the fill with the eight pieces of the prefix.
[[nodiscard]] test::Pixels ComposedTab(const String& prefix, TColor fill, int width, int height);
/// The picture with another colour where it is magenta.
[[nodiscard]] test::Pixels Over(TColor ground, const test::Pixels& picture);

/// A form with one header control, 300 pixels wide at (20, 30), and tabs and buttons of known widths on it
/// that draw nothing of their own.
template <class Control>
class StripTest : public test::FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Strip = new Control(nullptr);
        Strip->SetBounds(20, 30, 300, Strip->GetHeight());
        Strip->SetParent(&Form());
        Input.MoveAway();
    }
    /// A tab without caption or picture.
    TQV7SkinHeaderItemTab* AddBlank(int width, TQV7SkinTabBackground look = bckgrndStandard) {
        return Blank(new TQV7SkinHeaderItemTab(look), width);
    }
    TQV7SkinHeaderItemTabExt* AddExt(const String& caption) {
        auto* const tab = new TQV7SkinHeaderItemTabExt(bckgrndStandard, caption);
        Strip->GetItems().Add(tab);
        return tab;
    }
    TQV7SkinHeaderItemTab* AddTab(const String& caption) {
        auto* const tab = new TQV7SkinHeaderItemTab(bckgrndStandard, caption);
        Strip->GetItems().Add(tab);
        return tab;
    }
    template <class Item>
    Item* Blank(Item* item, int width) {
        item->OnMeasure = [width](TQV7SkinHeaderItemCustom*, TCanvas&, int& w) { w += width; };
        item->OnDraw = [](TQV7SkinHeaderItemCustom*, TCanvas&, int, int&) {};
        Strip->GetItems().Add(item);
        return item;
    }
    [[nodiscard]] TQV7SkinHeaderItems& Items() const { return Strip->GetItems(); }
    [[nodiscard]] HWND Surface() const { return Strip->GetPaintBox().GetHandle(); }
    [[nodiscard]] test::Pixels Shown() const { return test::ReadClient(Strip->GetHandle()); }
    [[nodiscard]] test::Pixels ShownAt(int left, int width) const {
        return Shown().Part({left, 0, left + width, Strip->GetHeight()});
    }
    /// Captions or, of items without one, the order in which they were named.
    [[nodiscard]] std::wstring Captions() const {
        std::wstring all;
        for (int i = 0; i < Items().GetCount(); ++i)
            all += Items()[i]->GetCaption();
        return all;
    }

    Control* Strip = nullptr;  // the form's
};

}  // namespace qv7skin::probes
