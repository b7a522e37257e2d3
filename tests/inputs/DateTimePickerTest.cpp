#include "inputs/UnitQV7SkinDateTimePicker.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/stdctrls/Label.h"
#include "skin/surfaces/Loaders.h"
#include "tests/inputs/InputsTest.h"
#include "tests/support/CalendarFonts.h"
#include "tests/support/FreedMemory.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;
using test::PumpAll;

class DateTimePicker : public InputsTest {
protected:
    TQV7SkinDateTimePicker& Picker() {
        if (!FPicker) {
            FPicker = Make<TQV7SkinDateTimePicker>(TRect::OfSize(10, 10, 140, 25));
            FPicker->CreateParts();
            FPicker->SetDate(Day);
            FPicker->OnDateChange = [this](TObject* sender) {
                EXPECT_EQ(sender, FPicker);
                ++Changes;
            };
        }
        return *FPicker;
    }
    TMonthCalendar& Calendar() { return *Picker().GetCalendarForm()->MonthCalendar; }
    void Open() {
        Picker().SetDroppedDown(true);
        PumpAll();
    }
    /// The text as if the user had written it.
    void Write(const String& text) {
        Picker().GetLabel()->SetCaption(text);
        Picker().DoEditChange(nullptr);
    }

    GermanDates German;
    const TDate Day = EncodeDate(2014, 2, 3);
    int Changes = 0;

private:
    test::CalendarFonts FFonts;
    TQV7SkinDateTimePicker* FPicker = nullptr;
};

TEST_F(DateTimePicker, ShowsTheDateWithItsDayOfTheWeek) {
    EXPECT_EQ(Picker().GetText(), L"Mo, 03.02.2014");
    EXPECT_EQ(Picker().GetFormattedDate(), L"Mo, 03.02.2014");
    EXPECT_EQ(Picker().GetLabel()->GetBoundsRect(), TRect::OfSize(4, 6, 140 - 4 - 33, 13));
    EXPECT_EQ(Picker().GetButton()->GetBoundsRect(), TRect::OfSize(140 - 33 - 2, 3, 33, 19));
    EXPECT_EQ(Picker().GetHeight(), 25);
}

TEST_F(DateTimePicker, TheFormatFollowsTheLocale) {
    TFormatSettings& settings = FormatSettings();
    EXPECT_EQ(Picker().GetDateFormat(), L"ddd, dd.mm.yyyy");
    EXPECT_EQ(Picker().GetDateEditMask(), L"LL, !99.99.0000;1;_");
    settings.ShortDateFormat = L"yyyy-MM-dd";
    settings.DateSeparator = L'-';
    EXPECT_EQ(Picker().GetDateFormat(), L"ddd, yyyy-mm-dd");
    EXPECT_EQ(Picker().GetDateEditMask(), L"LL, !0000-99-99;1;_");
    settings.ShortDateFormat = L"M/d/yyyy";
    settings.DateSeparator = L'/';
    settings.ShortDayNames[3] = L"Wed";
    EXPECT_EQ(Picker().GetDateFormat(), L"ddd, mm/dd/yyyy");
    EXPECT_EQ(Picker().GetDateEditMask(), L"LLl, !99/99/0000;1;_");
    settings.ShortDateFormat = L"TT.MM.JJJJ";
    EXPECT_EQ(Picker().GetDateFormat(), L"ddd, mm/dd/yyyy");
    settings.ShortDateFormat = L"?";
    EXPECT_EQ(Picker().GetDateFormat(), L"ddd, mm/dd/yyyy");
    settings.ShortDateFormat = L"E.M.D";
    settings.ShortDayNames[3] = L"Mier";
    EXPECT_EQ(Picker().GetDateFormat(), L"ddd, yyyy/mm/dd");
    EXPECT_EQ(Picker().GetDateEditMask(), L"LLLL, !0000/99/99;1;_");
}

TEST_F(DateTimePicker, EveryDateReadsBackInEveryLocale) {
    std::vector<TFormatSettings> locales;
    for (const LCID locale : {LCID{0x0407}, LCID{0x0409}, LCID{0x0411}, LCID{0x040E}})
        locales.push_back(TFormatSettings::OfLocale(locale));
    TFormatSettings artificial = locales.front();
    artificial.ShortDateFormat = L"--";
    artificial.DateSeparator = L'~';
    artificial.ShortDayNames = {L"Alpha", L"B", L"", L"D d", L"E.", L"\x0416", L"G"};
    locales.push_back(artificial);
    for (const TFormatSettings& locale : locales) {
        FormatSettings() = locale;
        for (TDate date = EncodeDate(2024, 1, 1); date < EncodeDate(2025, 1, 1); ++date) {
            Picker().SetDate(date);
            const String text = Picker().GetText();
            Picker().SetDate(0);
            Write(text);
            Picker().DoEditExit(nullptr);
            ASSERT_EQ(Picker().GetDate(), date) << ToUtf8(text);
        }
    }
}

TEST_F(DateTimePicker, HostileTextsAreRepairedInSilence) {
    const String hostile[] = {L"",
                              L"99.99.9999",
                              L"Mo, 31.2.2014",
                              String(1 << 20, L'9'),
                              L"31.2.",
                              L"Mo, 31.2.",
                              L"\xDE00\xD83D\xD83D",
                              L",",
                              L"\xD83D, \xDE00",
                              L"Mo 03.02.2014",
                              L"Mo, 03/02/2014",
                              L"morgen,",
                              String(1 << 20, L',')};
    Picker();
    for (const String& text : hostile) {
        Write(text);
        wchar_t key = 13;
        Picker().DoEditKeyPress(nullptr, key);
        EXPECT_EQ(Picker().GetText(), L"Mo, 03.02.2014");
        EXPECT_EQ(Picker().GetDate(), Day);
    }
    EXPECT_EQ(Changes, 0);
}

TEST_F(DateTimePicker, WhatIsNoDateIsRepairedByLeavingAndByOpening) {
    Picker();
    Write(L"gestern");
    Picker().DoEditExit(nullptr);
    EXPECT_EQ(Picker().GetText(), L"Mo, 03.02.2014");
    Write(L"31.2.");
    Open();
    EXPECT_EQ(Picker().GetText(), L"Mo, 03.02.2014");
    EXPECT_EQ(Calendar().GetDate(), Day);
    EXPECT_EQ(Changes, 0);
    Input.KeyPress(VK_ESCAPE);
    // A text that nobody changed is left alone.
    Picker().GetLabel()->SetCaption(L"gestern");
    Picker().DoEditExit(nullptr);
    EXPECT_EQ(Picker().GetText(), L"gestern");
}

TEST_F(DateTimePicker, ATextIsReadByEnterAndByLeaving) {
    Picker();
    Write(L"Mo, 4.2.2014");
    wchar_t key = L'x';
    Picker().DoEditKeyPress(nullptr, key);
    EXPECT_EQ(Picker().GetDate(), Day);
    key = 13;
    Picker().DoEditKeyPress(nullptr, key);
    EXPECT_EQ(Picker().GetDate(), Day + 1);
    EXPECT_EQ(Picker().GetText(), L"Di, 04.02.2014");
    Picker().DoEditExit(nullptr);
    EXPECT_EQ(Changes, 1);
    Write(L"5.2.2014");
    Picker().DoEditExit(nullptr);
    EXPECT_EQ(Picker().GetText(), L"Mi, 05.02.2014");
    EXPECT_EQ(Changes, 2);
}

TEST_F(DateTimePicker, ADateThatIsSetGoesBeforeATextThatWasWritten) {
    Picker();
    Write(L"24.12.2015");
    Picker().SetDate(Day + 5);
    Picker().DoEditExit(nullptr);
    EXPECT_EQ(Picker().GetDate(), Day + 5);
    EXPECT_EQ(Changes, 1);
}

TEST_F(DateTimePicker, EverySettingOfTheDateIsTold) {
    Picker().SetDate(Day);
    Picker().SetDate(Day);
    EXPECT_EQ(Changes, 2);
}

TEST_F(DateTimePicker, GreyTextIsGrey) {
    EXPECT_EQ(Picker().GetLabel()->GetFont().GetColor(), 0x00000000u);
    Picker().SetTextGrayed(true);
    EXPECT_EQ(Picker().GetLabel()->GetFont().GetColor(), 0x00AAAAAAu);
    Picker().SetTextGrayed(false);
    EXPECT_EQ(Picker().GetLabel()->GetFont().GetColor(), 0x00000000u);
}

TEST_F(DateTimePicker, TheCalendarFormIsAsDesigned) {
    TfrmQV7SkinDateTimePickerDropDown& form = *Picker().GetCalendarForm();
    EXPECT_EQ(form.GetBorderStyle(), bsNone);
    EXPECT_EQ(form.GetClientWidth(), 174);
    EXPECT_EQ(form.GetClientHeight(), 158);
    EXPECT_EQ(form.GetColor(), clWhite);
    EXPECT_EQ(form.GetCaption(), L"MonthCalendar");
    EXPECT_EQ(form.GetFont().GetName(), L"MS Sans Serif");
    EXPECT_EQ(form.GetFont().GetHeight(), -11);
    EXPECT_TRUE(form.GetKeyPreview());
    EXPECT_EQ(Calendar().GetBoundsRect(), TRect::OfSize(-1, -1, 176, 160));
    EXPECT_EQ(Calendar().GetCalColors().GetTitleBackColor(), 0x00555555u);
    EXPECT_EQ(Calendar().GetCalColors().GetTrailingTextColor(), 0x00F0EAE7u);
    EXPECT_EQ(Calendar().GetCalColors().GetTextColor(), clBlack);
}

TEST_F(DateTimePicker, AClickOpensTheCalendarOnTheDate) {
    Picker();
    Input.ClickAt(Form().GetHandle(), 130, 22);
    EXPECT_TRUE(Picker().GetDroppedDown());
    EXPECT_TRUE(Picker().GetCalendarForm()->GetVisible());
    EXPECT_EQ(Calendar().GetDate(), Day);
    EXPECT_EQ(::GetWindow(Picker().GetCalendarForm()->GetHandle(), GW_OWNER), Form().GetHandle());
    Input.ClickAt(Form().GetHandle(), 130, 22);
    EXPECT_FALSE(Picker().GetCalendarForm()->GetVisible());
    EXPECT_FALSE(Picker().GetDroppedDown());
}

TEST_F(DateTimePicker, EscapeKeepsTheOldDate) {
    Open();
    Input.KeyPress(VK_RIGHT);
    EXPECT_EQ(Calendar().GetDate(), Day + 1);
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(Picker().GetCalendarForm()->GetVisible());
    EXPECT_EQ(Picker().GetDate(), Day);
    EXPECT_EQ(Changes, 0);
    Open();
    EXPECT_EQ(Calendar().GetDate(), Day);
    EXPECT_FALSE(Picker().GetCalendarForm()->Cancelled);
    Input.KeyPress(VK_ESCAPE);
}

TEST_F(DateTimePicker, EnterTakesTheDayOver) {
    Open();
    Input.KeyPress(VK_DOWN);
    Input.KeyPress(VK_RETURN);
    EXPECT_FALSE(Picker().GetCalendarForm()->GetVisible());
    EXPECT_EQ(Picker().GetDate(), Day + 7);
    EXPECT_EQ(Picker().GetText(), L"Mo, 10.02.2014");
    EXPECT_EQ(Changes, 1);
}

TEST_F(DateTimePicker, ADoubleClickTakesTheDayOver) {
    Open();
    Input.DoubleClickAt(Calendar().GetHandle(), 90, 90);
    EXPECT_FALSE(Picker().GetCalendarForm()->GetVisible());
    EXPECT_EQ(Picker().GetDate(), Calendar().GetDate());
    EXPECT_NE(Picker().GetDate(), Day);
}

TEST_F(DateTimePicker, AClickElsewhereTakesTheDayOver) {
    Other();
    Open();
    Input.KeyPress(VK_LEFT);
    Input.ClickAt(Other().GetHandle(), 50, 50);
    EXPECT_FALSE(Picker().GetCalendarForm()->GetVisible());
    EXPECT_EQ(Picker().GetDate(), Day - 1);
    EXPECT_EQ(Changes, 1);
}

TEST_F(DateTimePicker, ADateSetWhileOpenShowsInTheCalendar) {
    Open();
    Picker().SetDate(Day + 40);
    EXPECT_EQ(Calendar().GetDate(), Day + 40);
    Input.KeyPress(VK_ESCAPE);
}

TEST_F(DateTimePicker, AChangedTextIsReadBeforeTheCalendarOpens) {
    Picker();
    Write(L"24.12.2015");
    Open();
    EXPECT_EQ(Calendar().GetDate(), EncodeDate(2015, 12, 24));
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(Picker().GetDate(), EncodeDate(2015, 12, 24));
}

TEST_F(DateTimePicker, TheButtonShowsItsPictureInTheMiddleOfWhite) {
    const std::unique_ptr<TBitmap> bitmap = CreateBmp(L"DATETIMEPICKERBUTTON");
    const test::Pixels picture = test::ReadBitmap(bitmap->GetHandle());
    EXPECT_EQ(picture.Width(), 14);
    EXPECT_EQ(picture.Height(), 18);
    EXPECT_TRUE(test::SamePixels(Shown(*Picker().GetButton()), [&](int x, int y) {
        const COLORREF color = picture.At(x - (33 - 14) / 2, y - (19 - 18) / 2);
        return color == CLR_INVALID ? COLORREF{0x00FFFFFF} : color;
    }));
}

TEST_F(DateTimePicker, ItsNameIsNoDate) {
    auto* picker = Make<TQV7SkinDateTimePicker>(TRect::OfSize(10, 50, 140, 25));
    picker->SetName(L"Termin");
    picker->SetTextGrayed(true);
    picker->CreateParts();
    EXPECT_EQ(picker->GetText(), L"");
    EXPECT_EQ(picker->GetLabel()->GetFont().GetColor(), 0x00AAAAAAu);
    EXPECT_EQ(picker->GetLabel()->GetAnchors(), (TAnchors{akLeft, akTop, akRight}));
    EXPECT_EQ(picker->GetButton()->GetAnchors(), (TAnchors{akTop, akRight, akBottom}));
}

TEST_F(DateTimePicker, GreyTextShows) {
    Picker().SetTextGrayed(true);
    EXPECT_GT(Shown(Picker()).Count(0x00AAAAAA), 20);
    EXPECT_EQ(Shown(Picker()).Part({0, 0, 100, 25}).Count(0), 0);
    Picker().SetTextGrayed(false);
    EXPECT_GT(Shown(Picker()).Count(0), 20);
}

TEST_F(DateTimePicker, ClosingByCodeTakesTheDayOver) {
    Open();
    Calendar().SetDate(Day + 3);
    Picker().SetDroppedDown(false);
    PumpAll();
    EXPECT_FALSE(Picker().GetCalendarForm()->GetVisible());
    EXPECT_EQ(Picker().GetDate(), Day + 3);
    EXPECT_EQ(Changes, 1);
}

TEST_F(DateTimePicker, ADateSetByOnDropDownShowsInTheCalendar) {
    std::vector<String> told;
    Picker().OnDropDown = [&](TObject* sender) {
        EXPECT_EQ(sender, &Picker());
        told.emplace_back(L"open");
        Picker().SetDate(Day + 9);
    };
    Picker().OnCloseUp = [&](TObject* sender) {
        EXPECT_EQ(sender, &Picker());
        told.emplace_back(L"close");
    };
    Open();
    EXPECT_EQ(Calendar().GetDate(), Day + 9);
    Input.KeyPress(VK_ESCAPE);
    EXPECT_EQ(told, (std::vector<String>{L"open", L"close"}));
}

TEST_F(DateTimePicker, AFormWithABorderCountsAsOpenToo) {
    Picker().GetCalendarForm()->SetShowBorder(true);
    Input.ClickAt(Form().GetHandle(), 130, 22);
    EXPECT_TRUE(Picker().GetDroppedDown());
    Picker().GetCalendarForm()->Close();
    EXPECT_FALSE(Picker().GetDroppedDown());
}

TEST_F(DateTimePicker, TheCalendarKeepsItsTwoKeysAndLeavesTheOthers) {
    Open();
    TfrmQV7SkinDateTimePickerDropDown& form = *Picker().GetCalendarForm();
    wchar_t key = L'x';
    form.FormKeyPress(nullptr, key);
    EXPECT_EQ(key, L'x');
    EXPECT_TRUE(form.GetVisible());
    form.Cancelled = true;
    key = 13;
    form.FormKeyPress(nullptr, key);
    EXPECT_EQ(key, 0);
    EXPECT_FALSE(form.Cancelled);
    EXPECT_FALSE(form.GetVisible());
    Open();
    key = 27;
    form.FormKeyPress(nullptr, key);
    EXPECT_EQ(key, 0);
    EXPECT_TRUE(form.Cancelled);
    EXPECT_FALSE(form.GetVisible());
    form.MonthCalendarDblClick(nullptr);
    EXPECT_FALSE(form.Cancelled);
}

TEST_F(DateTimePicker, MayBeFreedByTheDateThatOpeningReads) {
    const test::FreedMemory freed;
    Picker().OnDateChange = [](TObject* sender) { delete static_cast<TQV7SkinDateTimePicker*>(sender); };
    Write(L"24.12.2015");
    Picker().SetDroppedDown(true);
    EXPECT_EQ(Form().GetControlCount(), 0);
    EXPECT_EQ(test::FreedMemory::WrittenBlocks(), 0);
}

TEST_F(DateTimePicker, MayBeFreedByTheDateThatClosingTakesOver) {
    const test::FreedMemory freed;
    Open();
    Picker().OnDateChange = [](TObject* sender) { delete static_cast<TQV7SkinDateTimePicker*>(sender); };
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Form().GetControlCount(), 0);
    EXPECT_EQ(test::FreedMemory::WrittenBlocks(), 0);
}

/// The user may choose another one, or give up.
TEST_F(DateTimePicker, ADayThatTheHostRefusesByAnErrorKeepsTheCalendar) {
    Open();
    Picker().OnDateChange = [](TObject*) { throw Exception(L"kein Feiertag"); };
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(std::exchange(Errors, {}).size(), 1u);
    EXPECT_FALSE(Picker().GetDroppedDown());
    EXPECT_TRUE(Picker().GetCalendarForm()->GetVisible());
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(Picker().GetCalendarForm()->GetVisible());
    EXPECT_TRUE(Errors.empty());
}

TEST_F(DateTimePicker, DisablingTurnsTextAndPictureGrey) {
    const auto isGrey = [](COLORREF color) {
        return GetRValue(color) == GetGValue(color) && GetGValue(color) == GetBValue(color);
    };
    const auto isColoured = [&](COLORREF color) { return !isGrey(color); };
    RECT coloured = Shown(*Picker().GetButton()).Bounds(isColoured);
    EXPECT_FALSE(::IsRectEmpty(&coloured));
    Picker().SetEnabled(false);
    EXPECT_FALSE(Picker().GetLabel()->GetEnabled());
    const test::Pixels shown = Shown(*Picker().GetButton());
    coloured = shown.Bounds(isColoured);
    EXPECT_TRUE(::IsRectEmpty(&coloured));
    EXPECT_LT(shown.Count(0x00FFFFFF), 33 * 19);
    EXPECT_EQ(shown.Count(0), 0);
    EXPECT_GT(Shown(Picker()).Count(ColorToRGB(clGrayText)), 20);
    Picker().SetEnabled(true);
    EXPECT_TRUE(Picker().GetLabel()->GetEnabled());
    EXPECT_GT(Shown(Picker()).Count(0), 20);
}

TEST_F(DateTimePicker, AWholeMonthShows) {
    Open();
    EXPECT_GE(Calendar().GetWidth(), Calendar().GetNeededSize().Width);
    EXPECT_GE(Calendar().GetHeight(), Calendar().GetNeededSize().Height);
    EXPECT_GE(Picker().GetCalendarForm()->GetClientWidth(), Calendar().GetWidth() - 2);
    EXPECT_GE(Picker().GetCalendarForm()->GetClientHeight(), Calendar().GetHeight() - 2);
    Input.KeyPress(VK_ESCAPE);
}

TEST_F(DateTimePicker, HasNoPartsAtDesignTime) {
    TForm designed(nullptr);
    designed.SetDesigning(true);
    auto* picker = new TQV7SkinDateTimePicker(&designed);
    picker->SetParent(&designed);
    picker->CreateParts();
    EXPECT_EQ(picker->GetLabel(), nullptr);
    EXPECT_EQ(picker->GetCalendarForm(), nullptr);
    picker->SetDate(Day);
    EXPECT_EQ(picker->GetText(), L"Mo, 03.02.2014");
    picker->ReadDateFromInput();
    EXPECT_EQ(picker->GetDate(), Day);
}

TEST_F(DateTimePicker, MayGoWithItsCalendarOpen) {
    Open();
    Picker().Free();
    PumpAll();
    EXPECT_EQ(Form().GetControlCount(), 0);
}

/// In four tests, since each takes its time.
class DateTimePickerRounds : public DateTimePicker, public testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(OfAThousand, DateTimePickerRounds, testing::Range(0, 4));

TEST_P(DateTimePickerRounds, LeaveNothingBehind) {
    for (int round = 0; round < 250; ++round) {
        Picker().SetDroppedDown(true);
        Picker().GetCalendarForm()->Close();
    }
    EXPECT_EQ(Picker().GetDate(), Day);
}

}  // namespace
