#pragma once

#include "explorerbar/UnitQV7SkinPopupForm.h"
#include "inputs/Namespace.h"
#include "platform/vcl/stdctrls/MonthCalendar.h"

namespace qv7skin {

/// The popup form with the month calendar of the date-time picker. Enter and a double click close it with the
/// day that is chosen, Escape without.
class TfrmQV7SkinDateTimePickerDropDown : public TQV7SkinPopupForm {
public:
    explicit TfrmQV7SkinDateTimePickerDropDown(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// From the form's file; owned by the form.
    TMonthCalendar* MonthCalendar = nullptr;
    /// True after Escape closed the form, until it shows again.
    bool Cancelled = false;

    // What the form's file binds.
    void FormShow(TObject* Sender);
    void FormKeyPress(TObject* Sender, wchar_t& Key);
    void MonthCalendarDblClick(TObject* Sender);

private:
    void MakeRoom();
};

}  // namespace qv7skin
