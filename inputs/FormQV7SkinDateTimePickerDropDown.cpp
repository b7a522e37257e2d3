#include "inputs/FormQV7SkinDateTimePickerDropDown.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"

namespace qv7skin {
namespace {

constexpr wchar_t Escape = 27;
constexpr wchar_t Enter = 13;

}  // namespace

const TMetaClass& TfrmQV7SkinDateTimePickerDropDown::StaticClass() {
    using C = TfrmQV7SkinDateTimePickerDropDown;
    static const TMetaClass meta =
        DefineClass<C>(L"TfrmQV7SkinDateTimePickerDropDown", TQV7SkinPopupForm::StaticClass())
            .Component<&C::MonthCalendar>(L"MonthCalendar")
            .Method<&C::FormShow>(L"FormShow")
            .Method<&C::FormKeyPress>(L"FormKeyPress")
            .Method<&C::MonthCalendarDblClick>(L"MonthCalendarDblClick");
    return meta;
}

TfrmQV7SkinDateTimePickerDropDown::TfrmQV7SkinDateTimePickerDropDown(TComponent* AOwner)
    : TQV7SkinPopupForm(AOwner) {
    RegisterClass(TMonthCalendar::StaticClass());
    InitInheritedComponent(*this, TQV7SkinPopupForm::StaticClass());
}

void TfrmQV7SkinDateTimePickerDropDown::FormShow(TObject*) {
    Cancelled = false;
    MakeRoom();
}

/// The month needs more room with some fonts of the system than the form was designed with.
void TfrmQV7SkinDateTimePickerDropDown::MakeRoom() {
    const TSize needed = MonthCalendar->GetNeededSize();
    const int right = std::max(needed.Width - MonthCalendar->GetWidth(), 0);
    const int down = std::max(needed.Height - MonthCalendar->GetHeight(), 0);
    if (right == 0 && down == 0) return;
    MonthCalendar->SetBounds(MonthCalendar->GetLeft(), MonthCalendar->GetTop(),
                             MonthCalendar->GetWidth() + right, MonthCalendar->GetHeight() + down);
    SetClientWidth(std::max(GetClientWidth(), MonthCalendar->GetLeft() + MonthCalendar->GetWidth() - 1));
    SetClientHeight(std::max(GetClientHeight(), MonthCalendar->GetTop() + MonthCalendar->GetHeight() - 1));
}

void TfrmQV7SkinDateTimePickerDropDown::FormKeyPress(TObject*, wchar_t& Key) {
    if (Key != Escape && Key != Enter) return;
    Cancelled = Key == Escape;
    Key = 0;
    Close();
}

void TfrmQV7SkinDateTimePickerDropDown::MonthCalendarDblClick(TObject*) {
    Cancelled = false;
    Close();
}

}  // namespace qv7skin
