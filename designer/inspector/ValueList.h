#pragma once

#include <vector>

#include "designer/Namespace.h"
#include "explorerbar/UnitQV7SkinPopupForm.h"

namespace vcl {
class TScrollBox;
}

namespace designer {

class TRowList;

/// The values of a property to choose from, dropped down below its line: by mouse, arrow keys, the letters
/// that a value begins with, Enter. Escape and a click elsewhere close it.
class TValueList final : public TQV7SkinPopupForm {
public:
    explicit TValueList(TComponent* AOwner);

    /// The rows that are seen at once.
    static constexpr int MaxRows = 16;

    /// Shows the values below `place` (client pixels of the control), or above it where the screen ends.
    /// `chosen` is the present value; with `showColors` a sample stands before each name.
    void Drop(TControl& control, const TRect& place, std::vector<String> values, const String& chosen,
              bool showColors);
    [[nodiscard]] TRowList& List() const { return *FList; }

    /// A value was taken; the list is closed.
    TEvent<void(const String&)> OnTake;
    /// The list was given up by a key; the focus may go back.
    TEvent<void()> OnLeave;

protected:
    void KeyPress(wchar_t& key) override;

private:
    void ListMouseMove(TObject* sender, TShiftState shift, int x, int y);
    void ListKeyDown(TObject* sender, WORD& key, TShiftState shift);
    void DrawColor(TCanvas& canvas, const TRect& place, int index);
    void ChooseTyped(wchar_t character);
    void Take();
    [[nodiscard]] int NeededWidth();

    TScrollBox* FBox;
    TRowList* FList;
    String FTyped;    ///< The letters since the list was opened or moved in.
    TPoint FPointer;  ///< Rows that move under a resting mouse are not chosen by it.
};

}  // namespace designer
