#include "tests/designer/DialogDriver.h"

#include <cstdlib>
#include <utility>

#include "buttons/UnitQV7SkinButton.h"
#include "designer/dialogs/RowList.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/menus/ShortCuts.h"
#include "tests/support/PixelProbe.h"
#include "tests/support/Pump.h"

namespace designer {
namespace {

/// The first control below `parent` for which the condition holds.
template <class Control>
Control* FindBelow(TWinControl& parent, const std::function<bool(Control&)>& condition) {
    for (int i = 0; i < parent.GetControlCount(); ++i) {
        auto* control = dynamic_cast<Control*>(parent.GetControl(i));
        if (control && condition(*control)) return control;
        TWinControl* window = parent.GetControl(i)->AsWinControl();
        if (!window) continue;
        if (Control* found = FindBelow(*window, condition)) return found;
    }
    return nullptr;
}

template <class Control>
Control& RequireBelow(TWinControl& parent, const std::function<bool(Control&)>& condition) {
    if (Control* found = FindBelow(parent, condition)) return *found;
    throw EInvalidOperation(L"The dialog has no such control");
}

}  // namespace

TRowList& DialogDriver::List() const {
    return RequireBelow<TRowList>(FForm, [](TRowList&) { return true; });
}

void DialogDriver::Press(const wchar_t* caption) {
    auto& button = RequireBelow<TQV7SkinButton>(
        FForm, [caption](TQV7SkinButton& b) { return SameCaption(b.GetCaption(), caption); });
    Input.ClickAt(button.WindowHandle(), button.GetWidth() / 2, button.GetHeight() / 2);
}

void DialogDriver::ClickRow(int index) {
    const TRect row = List().RowRect(index);
    Input.ClickAt(List().WindowHandle(), row.Left + 40, (row.Top + row.Bottom) / 2);
}

void DialogDriver::DragRow(int index, int before) {
    TRowList& list = List();
    const int height = list.GetRowHeight();
    const TPoint from = list.ClientToScreen({40, index * height + height / 2});
    const TPoint to = list.ClientToScreen({40, before * height + (before > index ? -2 : 2)});
    Input.Drag(from, to);
}

void DialogDriver::Picture(const wchar_t* name) const {
    const char* folder = std::getenv("TEST_PICTURES");
    if (folder) test::ReadWindow(FForm.WindowHandle()).SavePpm(FromUtf8(folder) + L"\\" + name + L".ppm");
}

void InDialog(const wchar_t* caption, std::function<void(DialogDriver&)> steps) {
    const auto shows = [caption] {
        const TCustomForm* form = Screen().GetActiveForm();
        return form && form->GetCaption() == caption && form->GetActive();
    };
    test::When(shows, [steps = std::move(steps)] {
        TCustomForm& form = *Screen().GetActiveForm();
        DialogDriver driver(form);
        test::PumpAll();
        steps(driver);
        if (form.GetModalResult() == mrNone) form.Close();
    });
}

}  // namespace designer
