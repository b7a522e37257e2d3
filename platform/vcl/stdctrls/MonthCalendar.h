#pragma once

#include <memory>

#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/DateTime.h"

namespace vcl {

class TMonthCalendar;

/// The colours of a month calendar.
class TMonthCalColors : public TPersistent {
public:
    explicit TMonthCalColors(TMonthCalendar& owner) : FOwner(owner) {}
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void Assign(const TPersistent* source) override;

    /// Between the months.
    [[nodiscard]] TColor GetBackColor() const { return FBackColor; }
    void SetBackColor(TColor value) { Set(FBackColor, value); }
    [[nodiscard]] TColor GetTextColor() const { return FTextColor; }
    void SetTextColor(TColor value) { Set(FTextColor, value); }
    /// Behind the name of the month, and of the chosen day.
    [[nodiscard]] TColor GetTitleBackColor() const { return FTitleBackColor; }
    void SetTitleBackColor(TColor value) { Set(FTitleBackColor, value); }
    [[nodiscard]] TColor GetTitleTextColor() const { return FTitleTextColor; }
    void SetTitleTextColor(TColor value) { Set(FTitleTextColor, value); }
    /// Behind the days.
    [[nodiscard]] TColor GetMonthBackColor() const { return FMonthBackColor; }
    void SetMonthBackColor(TColor value) { Set(FMonthBackColor, value); }
    /// Days of the months before and after.
    [[nodiscard]] TColor GetTrailingTextColor() const { return FTrailingTextColor; }
    void SetTrailingTextColor(TColor value) { Set(FTrailingTextColor, value); }
    /// Gives the window all colours.
    void Apply() const;

private:
    void Set(TColor& color, TColor value);

    TMonthCalendar& FOwner;
    TColor FBackColor = clWindow;
    TColor FTextColor = clWindowText;
    TColor FTitleBackColor = clActiveCaption;
    TColor FTitleTextColor = clWhite;
    TColor FMonthBackColor = clWhite;
    TColor FTrailingTextColor = clInactiveCaptionText;
};

/// The month calendar of the system. Arrows, Page Up and Down, Home and End choose another day.
class TMonthCalendar : public TWinControl {
public:
    explicit TMonthCalendar(TComponent* AOwner);
    ~TMonthCalendar() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The chosen day; today at first. `OnClick` is raised when the user chose another one.
    [[nodiscard]] TDate GetDate() const { return FDate; }
    /// Days before 14 September 1752, which the system's calendar does not know, show as its first day.
    void SetDate(TDate value);
    [[nodiscard]] TMonthCalColors& GetCalColors() const { return *FCalColors; }
    void SetCalColors(const TMonthCalColors& value) { FCalColors->Assign(&value); }
    /// Whether the line with today's date shows; true at first.
    [[nodiscard]] bool GetShowToday() const { return FShowToday; }
    void SetShowToday(bool value);
    [[nodiscard]] bool GetWeekNumbers() const { return FWeekNumbers; }
    /// The size in pixels that one whole month needs.
    [[nodiscard]] TSize GetNeededSize();
    void SetWeekNumbers(bool value);

protected:
    void Dispatch(TMessage& message) override;
    void DefaultHandler(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;

private:
    void ShowDate();
    void WmDoubleClick(TMessage& message);
    void WmKeyDown(TMessage& message);
    [[nodiscard]] TDate AfterKey(WORD key) const;
    void ChooseByUser(TDate value);

    std::unique_ptr<TMonthCalColors> FCalColors;
    TDate FDate;
    bool FShowToday = true;
    bool FWeekNumbers = false;
};

}  // namespace vcl
