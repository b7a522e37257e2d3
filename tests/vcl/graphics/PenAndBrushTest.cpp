#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Pen.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/Probes.h"

namespace vcl {
namespace {

class PenTest : public test::LedgerTest {};
class BrushTest : public test::LedgerTest {};

TEST_F(PenTest, ANewPenIsThinSolidBlack) {
    const TPen pen;
    EXPECT_EQ(pen.GetColor(), clBlack);
    EXPECT_EQ(pen.GetWidth(), 1);
    EXPECT_EQ(pen.GetStyle(), psSolid);
    EXPECT_EQ(pen.GetMode(), pmCopy);
}

TEST_F(PenTest, TheHandleHasTheLooksOfThePen) {
    TPen pen;
    pen.SetColor(0x123456);
    pen.SetStyle(psDot);
    pen.SetWidth(3);
    LOGPEN looks{};
    ASSERT_NE(GetObjectW(pen.GetHandle(), sizeof looks, &looks), 0);
    EXPECT_EQ(looks.lopnStyle, static_cast<UINT>(PS_DOT));
    EXPECT_EQ(looks.lopnWidth.x, 3);
    EXPECT_EQ(looks.lopnColor, 0x123456U);
}

TEST_F(PenTest, EveryStyleIsTheWindowsStyleOfItsNumber) {
    EXPECT_EQ(static_cast<int>(psDash), PS_DASH);
    EXPECT_EQ(static_cast<int>(psDashDot), PS_DASHDOT);
    EXPECT_EQ(static_cast<int>(psDashDotDot), PS_DASHDOTDOT);
    EXPECT_EQ(static_cast<int>(psClear), PS_NULL);
    EXPECT_EQ(static_cast<int>(psInsideFrame), PS_INSIDEFRAME);
}

TEST_F(PenTest, PensThatLookAlikeShareOneHandle) {
    TPen first;
    TPen second;
    second.SetMode(pmXor);
    EXPECT_EQ(first.GetHandle(), second.GetHandle());
    second.SetColor(clRed);
    EXPECT_NE(first.GetHandle(), second.GetHandle());
}

TEST_F(PenTest, AChangeIsToldOnceAndOnlyWhenThereIsOne) {
    TPen pen;
    int changes = 0;
    pen.OnChange = [&](TObject*) { ++changes; };
    pen.SetColor(clBlack);
    pen.SetWidth(1);
    pen.SetWidth(-5);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(pen.GetWidth(), 1);
    pen.SetColor(clRed);
    pen.SetWidth(2);
    pen.SetStyle(psDash);
    pen.SetMode(pmNot);
    EXPECT_EQ(changes, 4);
    TPen other;
    other.Assign(&pen);
    pen.Assign(&other);
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(other.GetMode(), pmNot);
    EXPECT_EQ(other.GetStyle(), psDash);
    pen.Assign(nullptr);
    EXPECT_EQ(changes, 5);
    EXPECT_EQ(pen.GetWidth(), 1);
}

TEST_F(PenTest, OtherObjectsCannotBeAssigned) {
    TPen pen;
    const TBrush brush;
    EXPECT_THROW(pen.Assign(&brush), EConvertError);
}

TEST_F(BrushTest, ANewBrushIsSolidWhite) {
    const TBrush brush;
    EXPECT_EQ(brush.GetColor(), clWhite);
    EXPECT_EQ(brush.GetStyle(), bsSolid);
    EXPECT_EQ(brush.GetBitmap(), nullptr);
}

TEST_F(BrushTest, TheHandleHasTheLooksOfTheBrush) {
    TBrush brush;
    brush.SetColor(0x654321);
    LOGBRUSH looks{};
    ASSERT_NE(GetObjectW(brush.GetHandle(), sizeof looks, &looks), 0);
    EXPECT_EQ(looks.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(looks.lbColor, 0x654321U);
    brush.SetStyle(bsDiagCross);
    ASSERT_NE(GetObjectW(brush.GetHandle(), sizeof looks, &looks), 0);
    EXPECT_EQ(looks.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(looks.lbHatch, static_cast<ULONG_PTR>(HS_DIAGCROSS));
    brush.SetStyle(bsHorizontal);
    ASSERT_NE(GetObjectW(brush.GetHandle(), sizeof looks, &looks), 0);
    EXPECT_EQ(looks.lbHatch, static_cast<ULONG_PTR>(HS_HORIZONTAL));
}

TEST_F(BrushTest, AClearBrushIsTheHollowOneOfTheSystem) {
    TBrush brush;
    brush.SetStyle(bsClear);
    EXPECT_EQ(brush.GetHandle(), static_cast<HBRUSH>(GetStockObject(NULL_BRUSH)));
    EXPECT_EQ(brush.GetShared(), nullptr);
}

TEST_F(BrushTest, SettingAColorMakesAClearBrushSolid) {
    TBrush brush;
    brush.SetStyle(bsClear);
    brush.SetColor(brush.GetColor());
    EXPECT_EQ(brush.GetStyle(), bsSolid);
    brush.SetStyle(bsCross);
    brush.SetColor(clRed);
    EXPECT_EQ(brush.GetStyle(), bsCross);
}

TEST_F(BrushTest, ABrushOfASystemColorFollowsTheSystem) {
    TBrush brush;
    brush.SetColor(clAppWorkSpace);
    const INT index = COLOR_APPWORKSPACE;
    const COLORREF former = GetSysColor(index);
    const COLORREF changed = former ^ 0x00010101;
    (void)brush.GetHandle();
    SetSysColors(1, &index, &changed);
    LOGBRUSH looks{};
    GetObjectW(brush.GetHandle(), sizeof looks, &looks);
    SetSysColors(1, &index, &former);
    // Makes the brush of its own that the system dropped with the colour.
    GetSysColorBrush(index);
    EXPECT_EQ(looks.lbColor, changed);
}

TEST_F(BrushTest, BrushesThatLookAlikeShareOneHandle) {
    TBrush first;
    TBrush second;
    EXPECT_EQ(first.GetHandle(), second.GetHandle());
    second.SetStyle(bsVertical);
    EXPECT_NE(first.GetHandle(), second.GetHandle());
}

TEST_F(BrushTest, AChangeIsToldOnceAndOnlyWhenThereIsOne) {
    TBrush brush;
    int changes = 0;
    brush.OnChange = [&](TObject*) { ++changes; };
    brush.SetColor(clWhite);
    brush.SetStyle(bsSolid);
    brush.SetBitmap(nullptr);
    EXPECT_EQ(changes, 0);
    const TBitmap pattern(8, 8);
    brush.SetColor(clRed);
    brush.SetStyle(bsCross);
    brush.SetBitmap(&pattern);
    EXPECT_EQ(changes, 3);
    TBrush other;
    other.Assign(&brush);
    EXPECT_EQ(other.GetBitmap(), &pattern);
    brush.Assign(&other);
    EXPECT_EQ(changes, 3);
    brush.Assign(nullptr);
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(brush.GetBitmap(), nullptr);
}

}  // namespace
}  // namespace vcl
