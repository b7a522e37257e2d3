#pragma once

#include <memory>

#include "inputs/FormQV7SkinDateTimePickerDropDown.h"
#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"
#include "platform/vcl/core/DateTime.h"

namespace qv7skin {

/// Shows a date with the day of the week, and drops down a calendar to choose another one. It opens and
/// closes as the drop-down control does that it derives from.
///
/// The formats follow the process's settings (`FormatSettings`) each time.
class TCustomQV7SkinDateTimePicker : public TCustomQV7SkinComboBoxCustomDropDown {
public:
    explicit TCustomQV7SkinDateTimePicker(TComponent* AOwner);
    ~TCustomQV7SkinDateTimePicker() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised whenever the date was set, also to what it was.
    TNotifyEvent OnDateChange;

    [[nodiscard]] TDate GetDate() const { return FDate; }
    void SetDate(TDate Value);
    /// Day of the week, comma, and the date with four digits for the year, in the order and with the
    /// separator of the short date format: "ddd, dd.mm.yyyy".
    [[nodiscard]] String GetDateFormat() const;
    /// The mask for an editor of such dates: "LL, !99.99.0000;1;_".
    [[nodiscard]] String GetDateEditMask() const;
    /// The date in that format.
    [[nodiscard]] String GetFormattedDate() const;
    /// Whether the text is grey; false at first.
    [[nodiscard]] bool GetTextGrayed() const { return FTextGrayed; }
    void SetTextGrayed(bool Value);
    /// The calendar's form; null before it is made.
    [[nodiscard]] TfrmQV7SkinDateTimePickerDropDown* GetCalendarForm() const { return FForm.get(); }

    /// Reads the date from the text, or, when the text is none, writes the present date back.
    void ReadDateFromInput();
    // For a host that lets the text be edited: it was left, a key came, it changed.
    void DoEditExit(TObject* Sender);
    void DoEditKeyPress(TObject* Sender, wchar_t& Key);
    void DoEditChange(TObject* Sender);

    void CreateEdit() override;
    void CreateButton() override;
    void DoButtonPaint(TObject* Sender, TBitmap* Bitmap) override;
    void DoButtonMouseUp(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y) override;

protected:
    void CreateForm() override;
    void PrepareDropDown() override;
    void DropDownClosed() override;

private:
    void ShowDate();

    TDate FDate = 0;
    bool FTextGrayed = false;
    bool FTextChanged = false;
    std::unique_ptr<TBitmap> FButtonBitmap;
    std::unique_ptr<TBitmap> FPaleButtonBitmap;  ///< Of the disabled control; made when it is first shown.
    std::unique_ptr<TfrmQV7SkinDateTimePickerDropDown> FForm;
};

/// The date-time picker for forms.
class TQV7SkinDateTimePicker : public TCustomQV7SkinDateTimePicker {
public:
    using TCustomQV7SkinDateTimePicker::TCustomQV7SkinDateTimePicker;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
