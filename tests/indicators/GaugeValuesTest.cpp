#include <limits>

#include "platform/vcl/core/Exceptions.h"
#include "tests/indicators/GaugeFixture.h"

namespace test {
namespace {

using namespace qv7skin;

using GaugeValuesTest = GaugeTest;

TEST_F(GaugeValuesTest, ANewGaugeIsAnEmptyBarOfAHundredPixels) {
    TQV7SkinGauge gauge(nullptr);
    EXPECT_EQ(gauge.GetBoundsRect(), TRect::OfSize(0, 0, 100, 100));
    EXPECT_EQ(gauge.GetKind(), gkHorizontalBar);
    EXPECT_EQ(gauge.GetPercentDone(), 0);
    EXPECT_EQ(gauge.GetTextToPaint(), L"0%");
    EXPECT_EQ(gauge.GetColor(), clWindow);
    EXPECT_TRUE(gauge.GetParentColor());
    EXPECT_EQ(gauge.GetText(), L"");
}

TEST_F(GaugeValuesTest, ItsTextDoesNotFollowItsName) {
    TQV7SkinGauge gauge(nullptr);
    gauge.SetName(L"Gauge1");
    EXPECT_EQ(gauge.GetText(), L"");
}

TEST_F(GaugeValuesTest, AScaleWithoutLengthIsEmpty) {
    auto gauge = Bare(gkHorizontalBar);
    gauge->SetMaxValue(0);
    EXPECT_EQ(gauge->GetPercentDone(), 0);
    EXPECT_EQ(PictureOf(*gauge, 40, 20).Count(Fore), 0);
}

TEST_F(GaugeValuesTest, PercentagesLoseTheirFraction) {
    TQV7SkinGauge gauge(nullptr);
    gauge.SetMaxValue(3);
    gauge.SetProgress(1);
    EXPECT_EQ(gauge.GetPercentDone(), 33);
    gauge.SetProgress(2);
    EXPECT_EQ(gauge.GetPercentDone(), 66);
    gauge.SetMinValue(-3);
    EXPECT_EQ(gauge.GetPercentDone(), 83);
}

TEST_F(GaugeValuesTest, TheWholeRangeOfNumbersIsAScale) {
    constexpr int most = std::numeric_limits<int>::max();
    TQV7SkinGauge gauge(nullptr);
    gauge.SetMaxValue(most);
    gauge.SetMinValue(-most);
    gauge.SetProgress(0);
    EXPECT_EQ(gauge.GetPercentDone(), 50);
    gauge.SetProgress(most);
    EXPECT_EQ(gauge.GetPercentDone(), 100);
    gauge.AddProgress(most);
    EXPECT_EQ(gauge.GetProgress(), most);
    gauge.SetProgress(-most);
    gauge.AddProgress(-most);
    EXPECT_EQ(gauge.GetProgress(), -most);
}

TEST_F(GaugeValuesTest, ProgressStaysInTheScale) {
    TQV7SkinGauge gauge(nullptr);
    gauge.SetProgress(500);
    EXPECT_EQ(gauge.GetProgress(), 100);
    gauge.SetMinValue(10);
    gauge.SetProgress(3);
    EXPECT_EQ(gauge.GetProgress(), 10);
    gauge.SetMinValue(20);
    EXPECT_EQ(gauge.GetProgress(), 20);
    gauge.SetProgress(90);
    gauge.SetMaxValue(60);
    EXPECT_EQ(gauge.GetProgress(), 60);
}

TEST_F(GaugeValuesTest, EndsThatPassEachOtherAreErrors) {
    TQV7SkinGauge gauge(nullptr);
    const auto messageOf = [](const auto& action) {
        try {
            action();
        } catch (const EInvalidOperation& error) {
            return error.Message();
        }
        return String(L"none");
    };
    EXPECT_EQ(messageOf([&] { gauge.SetMinValue(101); }), L"Value must be between -2147483647 and 99");
    EXPECT_EQ(gauge.GetMinValue(), 0);
    EXPECT_EQ(messageOf([&] { gauge.SetMaxValue(-1); }), L"Value must be between 1 and 2147483647");
    EXPECT_EQ(gauge.GetMaxValue(), 100);
    gauge.SetMinValue(100);
    EXPECT_EQ(gauge.GetMinValue(), 100);
}

TEST_F(GaugeValuesTest, EndsMayPassEachOtherWhileLoading) {
    TQV7SkinGauge gauge(nullptr);
    gauge.BeginLoading();
    EXPECT_NO_THROW(gauge.SetMinValue(200));
    EXPECT_EQ(gauge.GetMinValue(), 200);
    EXPECT_EQ(gauge.GetProgress(), 200);
    EXPECT_NO_THROW(gauge.SetMaxValue(150));
    EXPECT_EQ(gauge.GetMaxValue(), 150);
    EXPECT_EQ(gauge.GetProgress(), 150);
}

TEST_F(GaugeValuesTest, TheTextSaysWhatItsKindSays) {
    TQV7SkinGauge gauge(nullptr);
    gauge.SetMaxValue(10);
    gauge.SetProgress(3);
    gauge.SetText(L"almost");
    EXPECT_EQ(gauge.GetTextToPaint(), L"30%");
    gauge.SetTextKind(gtkProgress);
    EXPECT_EQ(gauge.GetTextToPaint(), L"3 / 10");
    gauge.SetTextKind(gtkText);
    EXPECT_EQ(gauge.GetTextToPaint(), L"almost");
}

TEST_F(GaugeValuesTest, AStepPaintsOnlyWhenItMovesThePercentage) {
    ProbeGauge* gauge = MakeGauge();
    gauge->SetMaxValue(1000);
    gauge->Paints = 0;
    for (int i = 1; i < 10; ++i)
        gauge->SetProgress(i);
    PumpAll();
    EXPECT_EQ(gauge->Paints, 0);
    gauge->SetProgress(10);
    EXPECT_EQ(gauge->Paints, 1);
    gauge->SetProgress(10);
    EXPECT_EQ(gauge->Paints, 1);
    PumpAll();
    EXPECT_EQ(gauge->Paints, 1);
}

TEST_F(GaugeValuesTest, AddingPaintsOnceMoreInAnyCase) {
    ProbeGauge* gauge = MakeGauge();
    gauge->SetMaxValue(1000000);
    gauge->Paints = 0;
    for (int i = 0; i < 1000; ++i)
        gauge->AddProgress(1);
    PumpAll();
    EXPECT_EQ(gauge->GetProgress(), 1000);
    EXPECT_EQ(gauge->Paints, 1000);
    gauge->AddProgress(9000);
    EXPECT_EQ(gauge->Paints, 1002);
    gauge->AddProgress(0);
    EXPECT_EQ(gauge->Paints, 1003);
}

TEST_F(GaugeValuesTest, SettersPaintWhenTheyChangeSomething) {
    ProbeGauge* gauge = MakeGauge();
    const std::pair<const char*, std::function<void()>> setters[] = {
        {"Kind", [&] { gauge->SetKind(gkPie); }},
        {"ShowText", [&] { gauge->SetShowText(false); }},
        {"BorderStyle", [&] { gauge->SetBorderStyle(bsNone); }},
        {"ForeColor", [&] { gauge->SetForeColor(clRed); }},
        {"BackColor", [&] { gauge->SetBackColor(clGreen); }},
        {"TextKind", [&] { gauge->SetTextKind(gtkText); }},
        {"Text", [&] { gauge->SetText(L"x"); }},
        {"MinValue", [&] { gauge->SetMinValue(-5); }},
        {"MaxValue", [&] { gauge->SetMaxValue(200); }},
    };
    for (const auto& [name, set] : setters) {
        gauge->Paints = 0;
        set();
        EXPECT_EQ(gauge->Paints, 1) << name;
        set();
        EXPECT_EQ(gauge->Paints, 1) << name;
    }
}

TEST_F(GaugeValuesTest, ATextThatDoesNotShowPaintsNothing) {
    ProbeGauge* gauge = MakeGauge();
    gauge->SetText(L"unseen");
    gauge->SetTextKind(gtkProgress);
    gauge->Paints = 0;
    gauge->SetText(L"unseen too");
    PumpAll();
    EXPECT_EQ(gauge->Paints, 0);
}

TEST_F(GaugeValuesTest, AGaugeFreedInItsOwnClickDoesNoHarm) {
    ProbeGauge* gauge = MakeGauge();
    gauge->OnClick = [](TObject* sender) { delete sender; };
    Input.ClickAt(Form().WindowHandle(), 50, 50);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

}  // namespace
}  // namespace test
