#include "platform/flatstyle/FlatComboBox.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"
#include "tests/support/FreedMemory.h"
#include "tests/support/PixelProbe.h"

// Flat combo boxes whose entries the host draws.

namespace {

using namespace flatstyle;
using test::PumpAll;

class FlatOwnerDraw : public test::FormTest {
protected:
    TFlatComboBox& Box(TComboBoxStyle style = csOwnerDrawFixed) {
        if (!FBox) {
            FBox = Make<TFlatComboBox>(TRect::OfSize(10, 10, 100, 21));
            FBox->SetStyle(style);
            FBox->GetItems().Add(L"WWWWW");
            FBox->GetItems().Add(L"MMMMM");
            FBox->SetItemIndex(0);
            Make<TEdit>(TRect::OfSize(10, 100, 80, 21))->SetFocus();
        }
        return *FBox;
    }
    test::Pixels Shown() {
        PumpAll();
        return test::ReadClient(Box().GetHandle());
    }

private:
    TFlatComboBox* FBox = nullptr;
};

TEST_F(FlatOwnerDraw, WithoutAHandlerTheTextHasTheFontAndTheColours) {
    Box().SetColor(0x00CCDDEE);
    Box().GetFont().SetColor(0x00112233);
    Box().GetFont().SetHeight(-11);
    test::Pixels shown = Shown().Part({1, 1, 80, 20});
    EXPECT_GT(shown.Count(0x00112233), 20);
    EXPECT_EQ(shown.Count(0x00112233) + shown.Count(0x00CCDDEE), shown.Width() * shown.Height());
    const auto ink = [](COLORREF color) { return color == 0x00112233; };
    const RECT small = shown.Bounds(ink);
    EXPECT_NEAR((small.top + small.bottom) / 2, shown.Height() / 2, 1);
    Box().GetFont().SetHeight(-15);
    const RECT large = Shown().Part({1, 1, 80, 20}).Bounds(ink);
    EXPECT_GT(large.right - large.left, small.right - small.left);
    Box().SetFocus();
    shown = Shown();
    EXPECT_GT(shown.Count(ColorToRGB(clHighlight)), 100);
    EXPECT_GT(shown.Count(ColorToRGB(clHighlightText)), 20);
}

TEST_F(FlatOwnerDraw, TheHandlerHearsWhatToDraw) {
    struct Call {
        int Entry;
        UINT State;
        TRect Place;
    };
    std::vector<Call> calls;
    Box().OnDrawItem = [&](TObject* sender, int entry, const TRect& place, UINT state, HDC dc) {
        EXPECT_EQ(sender, &Box());
        EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), Box().GetFont().GetHandle());
        calls.push_back({entry, state, place});
        const RECT rect = place;
        ::FillRect(dc, &rect, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
        ::SelectObject(dc, ::GetStockObject(WHITE_PEN));
        ::SetTextColor(dc, 0x000000FF);
    };
    const test::Pixels shown = Shown();
    ASSERT_FALSE(calls.empty());
    const Call first = calls.back();
    EXPECT_EQ(first.Entry, 0);
    EXPECT_EQ(first.State, static_cast<UINT>(ODS_COMBOBOXEDIT));
    EXPECT_EQ(first.Place, TRect(2, 2, Box().GetClientWidth() - 17 - 2, Box().GetClientHeight() - 2));
    EXPECT_EQ(shown.At(2, 2), 0u);
    EXPECT_EQ(shown.At(1, 1), ColorToRGB(clWindow));
    EXPECT_EQ(shown.At(0, 5), 0x008396A0u);
    Box().SetItemIndex(-1);
    Shown();
    EXPECT_EQ(calls.back().Entry, -1);
    Box().SetFocus();
    Shown();
    EXPECT_TRUE(calls.back().State & ODS_SELECTED);
    Box().SetEnabled(false);
    Shown();
    EXPECT_TRUE(calls.back().State & ODS_DISABLED);
}

TEST_F(FlatOwnerDraw, AnErrorOfTheHandlerArrivesAndThePaintingGoesOn) {
    bool fails = true;
    Box().OnDrawItem = [&](TObject*, int, const TRect& place, UINT, HDC dc) {
        if (std::exchange(fails, false)) throw Exception(L"keine Farbe");
        const RECT rect = place;
        ::FillRect(dc, &rect, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    };
    Box().Invalidate();
    PumpAll();
    EXPECT_EQ(std::exchange(Errors, {}), (std::vector<std::string>{"Exception: keine Farbe"}));
    Box().Invalidate();
    EXPECT_EQ(Shown().At(4, 4), 0u);
}

/// The system cleans the device context of a window that went in the middle of its painting when it lends
/// that context out again.
void UseAllContexts(HWND window) {
    std::vector<HDC> contexts(64);
    for (HDC& dc : contexts)
        dc = ::GetDC(window);
    for (const HDC dc : contexts)
        ::ReleaseDC(window, dc);
}

TEST_F(FlatOwnerDraw, MayBeFreedByTheHandlerThatDraws) {
    const test::FreedMemory freed;
    bool gone = false;
    Box().OnDrawItem = [&](TObject* sender, int, const TRect&, UINT, HDC) {
        gone = true;
        delete static_cast<TFlatComboBox*>(sender);
    };
    Box().Invalidate();
    EXPECT_TRUE(test::PumpUntil([&] { return gone; }));
    PumpAll();
    EXPECT_EQ(Form().GetControlCount(), 1);
    UseAllContexts(Form().GetHandle());
    EXPECT_EQ(test::FreedMemory::WrittenBlocks(), 0);
}

TEST_F(FlatOwnerDraw, EntriesHaveTheirHeights) {
    Box(csOwnerDrawVariable);
    Box().OnMeasureItem = [](TObject*, int entry, int& height) { height = 20 + 10 * entry; };
    Box().RecreateWnd();
    for (const int entry : {0, 1})
        EXPECT_EQ(::SendMessageW(Box().GetHandle(), CB_GETITEMHEIGHT, static_cast<WPARAM>(entry), 0),
                  20 + 10 * entry);
    Box().GetItems().Add(L"drei");
    EXPECT_EQ(::SendMessageW(Box().GetHandle(), CB_GETITEMHEIGHT, 2, 0), 40);
}

TEST_F(FlatOwnerDraw, ANewWindowHasAClosedList) {
    Box(csDropDownList).SetFocus();
    const test::Pixels closed = Shown();
    Box().SetDroppedDown(true);
    EXPECT_FALSE(test::SamePixels(Shown(), closed));
    Box().RecreateWnd();
    Box().SetFocus();
    EXPECT_FALSE(Box().GetDroppedDown());
    EXPECT_TRUE(test::SamePixels(Shown(), closed));
}

}  // namespace
