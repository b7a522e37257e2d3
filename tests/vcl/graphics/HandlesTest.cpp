#include "platform/vcl/graphics/Handles.h"

#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/DeviceContexts.h"
#include "platform/vcl/graphics/GdiErrors.h"
#include "tests/support/LedgerTest.h"
#include "tests/support/TestWindow.h"
#include "tests/vcl/core/Probes.h"

namespace vcl {
namespace {

class HandlesTest : public test::LedgerTest {
protected:
    static long CountOf(const char* kind) {
        const TLedger::Counts counts = TLedger::Snapshot();
        const auto found = counts.find(kind);
        return found == counts.end() ? 0 : found->second;
    }
};

TEST_F(HandlesTest, AnOwnerClosesItsHandle) {
    HBRUSH brush = nullptr;
    {
        const TBrushHandle owner(CreateSolidBrush(0x123456));
        brush = owner.Get();
        ASSERT_EQ(GetObjectType(brush), static_cast<DWORD>(OBJ_BRUSH));
        EXPECT_TRUE(owner);
    }
    EXPECT_EQ(GetObjectType(brush), 0U);
}

TEST_F(HandlesTest, AnEmptyOwnerOwnsAndCountsNothing) {
    const long before = CountOf("pen");
    const TPenHandle none;
    const TPenHandle null(nullptr);
    EXPECT_FALSE(none);
    EXPECT_FALSE(null);
    EXPECT_EQ(CountOf("pen"), before);
}

TEST_F(HandlesTest, MovingLeavesNothingBehind) {
    TPenHandle first(CreatePen(PS_SOLID, 1, 0));
    const HPEN pen = first.Get();
    TPenHandle second(std::move(first));
    EXPECT_FALSE(first);  // NOLINT: what is left is the point here
    EXPECT_EQ(second.Get(), pen);
    TPenHandle third(CreatePen(PS_SOLID, 2, 0));
    const HPEN replaced = third.Get();
    third = std::move(second);
    EXPECT_EQ(third.Get(), pen);
    EXPECT_EQ(GetObjectType(replaced), 0U);
}

TEST_F(HandlesTest, ReleasingGivesTheHandleUp) {
    TRegionHandle owner(CreateRectRgn(0, 0, 1, 1));
    const HRGN region = owner.Release();
    EXPECT_FALSE(owner);
    EXPECT_EQ(GetObjectType(region), static_cast<DWORD>(OBJ_REGION));
    DeleteObject(region);
}

TEST_F(HandlesTest, ResettingClosesTheFormerHandle) {
    TFontHandle owner(CreateFontW(12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"));
    const HGDIOBJ former = owner.Get();
    owner.Reset();
    EXPECT_EQ(GetObjectType(former), 0U);
}

TEST_F(HandlesTest, TheLedgerCountsByKind) {
    const long bitmaps = CountOf("bitmap");
    const long menus = CountOf("menu");
    TBitmapHandle bitmap(CreateBitmap(1, 1, 1, 1, nullptr));
    {
        const TMenuHandle menu(CreateMenu());
        EXPECT_EQ(CountOf("menu"), menus + (TLedger::IsActive() ? 1 : 0));
    }
    EXPECT_EQ(CountOf("bitmap"), bitmaps + (TLedger::IsActive() ? 1 : 0));
    EXPECT_EQ(CountOf("menu"), menus);
    const TBitmapHandle moved(std::move(bitmap));
    EXPECT_EQ(CountOf("bitmap"), bitmaps + (TLedger::IsActive() ? 1 : 0));
}

TEST_F(HandlesTest, EachKindClosesItsWay) {
    const TMemoryDC dc = CreateMemoryDC();
    const TCursorHandle cursor(CreateCursor(nullptr, 0, 0, 8, 1, "\0", "\0"));
    const TIconHandle icon(CreateIcon(nullptr, 8, 1, 1, 1, reinterpret_cast<const BYTE*>("\0\0"),
                                      reinterpret_cast<const BYTE*>("\0\0")));
    ACCEL key{FVIRTKEY, VK_F2, 1};
    const TAcceleratorHandle table(CreateAcceleratorTableW(&key, 1));
    const TImageListHandle list(ImageList_Create(4, 4, ILC_COLOR24, 1, 1));
    const TGlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, 16));
    EXPECT_TRUE(dc && cursor && icon && table && list && memory);
}

TEST_F(HandlesTest, SelectingIsUndoneAtTheEndOfTheScope) {
    const TMemoryDC dc = CreateMemoryDC();
    const TBrushHandle brush(CreateSolidBrush(0x0000FF));
    const HGDIOBJ before = GetCurrentObject(dc.Get(), OBJ_BRUSH);
    {
        const TSelectObject selected(dc.Get(), brush.Get());
        EXPECT_TRUE(selected.IsSelected());
        EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_BRUSH), brush.Get());
    }
    EXPECT_EQ(GetCurrentObject(dc.Get(), OBJ_BRUSH), before);
}

TEST_F(HandlesTest, ABitmapInAnotherContextIsNotSelected) {
    const TMemoryDC first = CreateMemoryDC();
    const TMemoryDC second = CreateMemoryDC();
    const TBitmapHandle bitmap(CreateBitmap(2, 2, 1, 1, nullptr));
    const TSelectObject holds(first.Get(), bitmap.Get());
    const TSelectObject fails(second.Get(), bitmap.Get());
    EXPECT_TRUE(holds.IsSelected());
    EXPECT_FALSE(fails.IsSelected());
}

TEST_F(HandlesTest, TheStateOfAContextIsRestored) {
    const TMemoryDC dc = CreateMemoryDC();
    SetTextColor(dc.Get(), 0x112233);
    {
        const TSaveDC saved(dc.Get());
        SetTextColor(dc.Get(), 0x445566);
    }
    EXPECT_EQ(GetTextColor(dc.Get()), 0x112233U);
}

TEST_F(HandlesTest, WindowContextsReachWindowAndScreen) {
    const test::TestWindow window;
    const TWindowDC client(window.Handle());
    const TWindowDC whole = TWindowDC::OfWholeWindow(window.Handle());
    const TWindowDC screen(nullptr);
    EXPECT_EQ(WindowFromDC(client.Get()), window.Handle());
    EXPECT_EQ(client.Window(), window.Handle());
    EXPECT_EQ(WindowFromDC(whole.Get()), window.Handle());
    EXPECT_NE(screen.Get(), nullptr);
}

TEST_F(HandlesTest, ThereIsNoContextOfAWindowThatIsGone) {
    HWND gone = nullptr;
    {
        const test::TestWindow window;
        gone = window.Handle();
    }
    EXPECT_THROW(static_cast<void>(TWindowDC(gone)), EOutOfResources);
}

TEST_F(HandlesTest, PaintingValidatesTheWindow) {
    const test::TestWindow window;
    InvalidateRect(window, nullptr, FALSE);
    const RECT part{1, 2, 30, 40};
    ValidateRect(window, nullptr);
    InvalidateRect(window, &part, FALSE);
    {
        const TPaintDC paint(window.Handle());
        EXPECT_EQ(paint.Rect(), TRect(1, 2, 30, 40));
        EXPECT_FALSE(paint.NeedsErase());
    }
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
}

TEST_F(HandlesTest, ANullHandleRaisesTheSystemsText) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    const auto fail = [] { CheckHandle(static_cast<HBITMAP>(nullptr)); };
    EXPECT_EQ(probes::MessageOf<EOutOfResources>([] { RaiseOutOfResources(0); }), L"Out of system resources");
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_NE(probes::MessageOf<EOutOfResources>(fail), L"no error");
    EXPECT_NE(probes::MessageOf<EOutOfResources>([] { RaiseOutOfResources(ERROR_ACCESS_DENIED); }),
              probes::MessageOf<EOutOfResources>([] { RaiseOutOfResources(ERROR_NOT_ENOUGH_MEMORY); }));
    const auto stock = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(CheckHandle(stock), stock);
}

}  // namespace
}  // namespace vcl
