#pragma once

#include <functional>
#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/forms/CustomForm.h"
#include "tests/support/EventGenerator.h"

namespace designer {

class TInspectorGrid;
class TRowList;

/// A dialog and its parts as a user finds them.
class DialogDriver {
public:
    explicit DialogDriver(TCustomForm& form) : FForm(form) {}
    [[nodiscard]] TCustomForm& Form() const { return FForm; }
    [[nodiscard]] TRowList& List() const;
    /// Presses the button with that caption by mouse; raises EInvalidOperation when there is none.
    void Press(const wchar_t* caption);
    /// Presses the button of the toolbar.
    void PressTool(const wchar_t* caption);
    [[nodiscard]] TInspectorGrid& Grid() const;
    /// Types a value for the line of the inspector that shows.
    void SetLine(const wchar_t* path, const wchar_t* value);
    /// What the rows of the list show, each moved in by two blanks for each level.
    [[nodiscard]] std::vector<String> Rows() const;
    /// Clicks into the middle of a row of the list.
    void ClickRow(int index);
    void DragRow(int index, int before);
    /// Leaves a picture of the dialog in the folder that TEST_PICTURES names, when it names one.
    void Picture(const wchar_t* name) const;
    test::EventGenerator Input;

private:
    TCustomForm& FForm;
};

/// Runs `steps` as soon as a dialog of that caption shows, and then closes it if they did not.
void InDialog(const wchar_t* caption, std::function<void(DialogDriver&)> steps);

}  // namespace designer
