#pragma once

#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/controls/WinControl.h"

namespace designer {

/// A time in which controls of a form move and what they cover and uncover is not painted, until all have
/// moved. Then the form itself is painted only where something was touched, and only around the controls that
/// stand there: the system would first work out what a thousand of them leave of it, with each move.
class TQuietMoves {
public:
    /// The form must have a window and outlive this.
    explicit TQuietMoves(TWinControl& form);
    /// Without `Show`, after an error, all of the form will be painted.
    ~TQuietMoves();
    TQuietMoves(const TQuietMoves&) = delete;
    TQuietMoves& operator=(const TQuietMoves&) = delete;

    /// Something in that area, in client pixels of the form, is not what it was. Call it with the places
    /// before and after a move.
    void Touch(const TRect& area) { FTouched.push_back(area); }
    void Touch(const std::vector<TRect>& areas) {
        FTouched.insert(FTouched.end(), areas.begin(), areas.end());
    }
    /// Ends the time and paints what was touched.
    void Show();

private:
    void PaintForm(HRGN touched);

    TWinControl& FForm;
    std::vector<RECT> FTouched;
    bool FShown = false;
};

}  // namespace designer
