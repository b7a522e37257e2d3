#include <memory>

#include "indicators/UnitQV7SkinGauges.h"
#include "indicators/UnitQV7SkinLinkLabel.h"
#include "indicators/UnitQV7SkinSplitter.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "platform/vcl/streaming/Writer.h"
#include "tests/support/FormTest.h"
#include "tests/support/PublishedTable.h"

namespace test {
namespace {

using namespace qv7skin;
using Kind = TPropertyKind;

TEST(IndicatorsPublished, TheGaugeHasEveryRowOfItsTable) {
    const std::vector<PublishedRow> rows{
        {L"Kind", Kind::Enumeration, Number(1)},
        {L"MinValue", Kind::Integer, Number(0)},
        {L"MaxValue", Kind::Integer, Number(100)},
        {L"Progress", Kind::Integer, Number(0)},
        {L"ShowText", Kind::Boolean, Number(1)},
        {L"TextKind", Kind::Enumeration, Number(0)},
        {L"Text", Kind::String, String()},
        {L"BorderStyle", Kind::Enumeration, Number(1)},
        {L"ForeColor", Kind::Integer, Number(0)},
        {L"BackColor", Kind::Integer, Number(0x00FFFFFF)},
        {L"Align", Kind::Enumeration, Number(0)},
        {L"Anchors", Kind::Set, Number(3)},
        {L"Color", Kind::Integer, Number(clWindow)},
        {L"Enabled", Kind::Boolean, Number(1)},
        {L"Font", Kind::Nested, {}},
        {L"ParentColor", Kind::Boolean, Number(1)},
        {L"ParentFont", Kind::Boolean, Number(1)},
        {L"ParentShowHint", Kind::Boolean, Number(1)},
        {L"Visible", Kind::Boolean, Number(1)},
        {L"Constraints", Kind::Nested, {}},
        {L"PopupMenu", Kind::Component, {}},
        {L"ShowHint", Kind::Boolean, {}},
    };
    ExpectPublishes(TQV7SkinGauge::StaticClass(), rows);
    EXPECT_EQ(TQV7SkinGauge::StaticClass().OwnProperties().size(), rows.size());
}

TEST(IndicatorsPublished, TheLinkLabelHasItsOwnRowsAndThoseOfALabel) {
    const std::vector<PublishedRow> rows{
        {L"Picture", Kind::Nested, {}},
        {L"TransparentColor", Kind::Integer, Number(clNone)},
        {L"EllipsType", Kind::Enumeration, Number(0)},
        {L"Cursor", Kind::Integer, Number(crHandPoint)},
        {L"Layout", Kind::Enumeration, Number(1)},
        {L"Caption", Kind::String, {}},
        {L"FocusControl", Kind::Component, {}},
        {L"OnClick", Kind::Event, {}},
        {L"OnMouseEnter", Kind::Event, {}},
        {L"OnMouseLeave", Kind::Event, {}},
    };
    ExpectPublishes(TQV7SkinLinkLabel::StaticClass(), rows);
}

TEST(IndicatorsPublished, TheSplitterHasThoseOfTheFrameworksAndItsLeastSizes) {
    const std::vector<PublishedRow> rows{
        {L"MinConstraints", Kind::Nested, {}},
        {L"Align", Kind::Enumeration, Number(3)},
        {L"AutoSnap", Kind::Boolean, Number(1)},
        {L"Beveled", Kind::Boolean, Number(0)},
        {L"MinSize", Kind::Integer, Number(30)},
        {L"ResizeStyle", Kind::Enumeration, Number(3)},
        {L"Cursor", Kind::Integer, Number(crHSplit)},
        {L"OnCanResize", Kind::Event, {}},
        {L"OnMoved", Kind::Event, {}},
        {L"OnPaint", Kind::Event, {}},
    };
    ExpectPublishes(TQV7SkinSplitter::StaticClass(), rows);
    for (const wchar_t* name : {L"Left", L"Right", L"Top", L"Bottom"}) {
        const TPublishedProperty* property =
            TQV7SkinSplitterSizeConstraints::StaticClass().FindProperty(name);
        ASSERT_NE(property, nullptr);
        EXPECT_EQ(property->Default(), Number(0));
    }
}

class IndicatorsFormFile : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        RegisterClass(TQV7SkinGauge::StaticClass());
        RegisterClass(TQV7SkinLinkLabel::StaticClass());
        RegisterClass(TQV7SkinSplitter::StaticClass());
    }
    void Read(const String& contents) {
        const TFormDocument document = ParseFormText(L"object Form: TForm\n" + contents + L"\nend");
        TReader(document).ReadRootComponent(&Form());
    }
    template <class T>
    T& Find(const wchar_t* name) {
        auto* found = dynamic_cast<T*>(Form().FindComponent(name));
        EXPECT_NE(found, nullptr);
        return *found;
    }
};

TEST_F(IndicatorsFormFile, AGaugeLoadsEndsInAnyOrder) {
    Read(
        LR"(
    object Gauge: TQV7SkinGauge
        MinValue = 200
        MaxValue = 300
        Progress = 250
        Kind = gkPie
        TextKind = gtkText
        Text = 'halb'
    end)");
    const auto& gauge = Find<TQV7SkinGauge>(L"Gauge");
    EXPECT_EQ(gauge.GetMinValue(), 200);
    EXPECT_EQ(gauge.GetMaxValue(), 300);
    EXPECT_EQ(gauge.GetPercentDone(), 50);
    EXPECT_EQ(gauge.GetTextToPaint(), L"halb");
}

TEST_F(IndicatorsFormFile, ASplitterLoadsItsLeastSizes) {
    Read(
        LR"(
    object Splitter: TQV7SkinSplitter
        Left = 10
        Top = 20
        Width = 300
        Height = 5
        Cursor = crVSplit
        Align = alTop
        MinConstraints.Top = 40
        MinConstraints.Bottom = 50
    end)");
    const auto& splitter = Find<TQV7SkinSplitter>(L"Splitter");
    EXPECT_EQ(splitter.GetHeight(), 5);
    EXPECT_EQ(splitter.GetCursor(), crVSplit);
    EXPECT_EQ(splitter.GetMinConstraints().GetTop(), 40);
    EXPECT_EQ(splitter.GetMinConstraints().GetBottom(), 50);
    EXPECT_EQ(splitter.GetMinConstraints().GetLeft(), 0);
}

TEST_F(IndicatorsFormFile, LimitsOfAnAlignedControlCountOnceItIsLoaded) {
    Read(
        LR"(
    object Splitter: TQV7SkinSplitter
        Height = 40
        Constraints.MaxHeight = 40
    end)");
    EXPECT_EQ(Find<TQV7SkinSplitter>(L"Splitter").GetHeight(), 40);
}

TEST_F(IndicatorsFormFile, WhatIsWrittenIsReadAgain) {
    auto* label = new TQV7SkinLinkLabel(&Form());
    label->SetName(L"Link");
    label->SetParent(&Form());
    label->SetCaption(L"Verlauf");
    label->SetEllipsType(etPathEllips);
    label->SetTransparentColor(0x00FF00FF);
    TBitmap bitmap(5, 6, pf24bit);
    label->GetPicture().SetBitmap(&bitmap);
    const int width = label->GetWidth();
    const std::string text = FormToText(TWriter().WriteRootComponent(Form()));
    delete label;
    const TFormDocument document = ParseFormText(FromUtf8(text));
    TReader(document).ReadRootComponent(&Form());
    auto& again = Find<TQV7SkinLinkLabel>(L"Link");
    EXPECT_EQ(again.GetCaption(), L"Verlauf");
    EXPECT_EQ(again.GetEllipsType(), etPathEllips);
    EXPECT_EQ(again.GetTransparentColor(), 0x00FF00FFU);
    EXPECT_EQ(again.GetPicture().GetHeight(), 6);
    EXPECT_EQ(again.GetWidth(), width);
    EXPECT_EQ(again.GetCursor(), crHandPoint);
}

}  // namespace
}  // namespace test
