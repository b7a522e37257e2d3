#include "tests/designer/DialogDriver.h"

#include <cstdlib>
#include <utility>

#include "buttons/UnitQV7SkinButton.h"
#include "designer/dialogs/RowList.h"
#include "designer/inspector/InspectorGrid.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "header/UnitQV7SkinToolbar.h"
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

void DialogDriver::PressTool(const wchar_t* caption) {
    auto& toolbar = RequireBelow<TQV7SkinToolbar>(FForm, [](TQV7SkinToolbar&) { return true; });
    for (int i = 0; i < toolbar.GetItems().GetCount(); ++i) {
        if (toolbar.GetItems()[i]->GetCaption() != caption) continue;
        const TRect place = toolbar.GetItemRect(i);
        return Input.ClickAt(toolbar.WindowHandle(), toolbar.GetHorzOffset() + place.Left + 8,
                             toolbar.GetHeight() / 2);
    }
    throw EInvalidOperation(L"The toolbar has no such button");
}

TInspectorGrid& DialogDriver::Grid() const {
    return RequireBelow<TInspectorGrid>(FForm, [](TInspectorGrid&) { return true; });
}

void DialogDriver::SetLine(const wchar_t* path, const wchar_t* value) {
    Grid().Choose(path);
    Grid().SetFocus();
    Input.Chord({VK_CONTROL}, 'A');
    Input.Type(value);
    Input.KeyPress(VK_RETURN);
}

std::vector<String> DialogDriver::Rows() const {
    std::vector<String> rows;
    for (const TListRow& row : List().Rows())
        rows.push_back(String(static_cast<std::size_t>(row.Depth) * 2, L' ') + row.Text);
    return rows;
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
