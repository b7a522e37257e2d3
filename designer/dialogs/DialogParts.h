#pragma once

#include <functional>

#include "designer/Namespace.h"
#include "platform/vcl/forms/Form.h"

namespace vcl {
class TScrollBox;
}

namespace qv7skin {
class TQV7SkinButton;
}

namespace designer {

// What the designer's dialogs are put together from. All of it belongs to the form.

/// Pixels between the edge of a dialog and what stands in it.
inline constexpr int DialogMargin = 12;
/// Width and height of the buttons of dialogs.
inline constexpr int DialogButtonWidth = 100;
inline constexpr int DialogButtonHeight = 25;

/// Gives an empty form the look of a dialog of that size. One that can be sized does not become smaller.
void PrepareDialog(TForm& form, const String& caption, TSize size, bool isSizeable);
/// A button that runs the command. With a null command it closes the form with the result.
TQV7SkinButton& AddButton(TForm& form, TPoint place, const wchar_t* caption, std::function<void()> command);
TQV7SkinButton& AddClosingButton(TForm& form, TPoint place, const wchar_t* caption, TModalResult result);
/// "OK", which Enter presses, and "Abbrechen" in the lower right corner.
void AddOkAndCancel(TForm& form);
/// Tells the user that something could not be done.
void ShowErrorMessage(const String& message);
/// A white field with a frame, for a list that may become longer than it.
TScrollBox& AddScrollField(TWinControl& parent, const TRect& place);

}  // namespace designer
