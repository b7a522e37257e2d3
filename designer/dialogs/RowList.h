#pragma once

#include <vector>

#include "designer/Namespace.h"
#include "platform/vcl/controls/CustomControl.h"

namespace designer {

class TValueEdit;

/// A line of a list that a dialog shows.
struct TListRow {
    String Text = {};
    int Depth = 0;         ///< How far it is moved in, as in a tree.
    String Note = {};      ///< Drawn grey at the right edge.
    bool IsFaint = false;  ///< Drawn grey.
    bool IsLine = false;   ///< A line is drawn in place of the text.
};

/// A list of rows, one of them chosen: by mouse, arrow keys, Home and End. Where its owner wants it, rows can
/// be dragged to another place and their texts be edited where they stand. As high as all rows; it stands in
/// a control that scrolls.
class TRowList final : public TCustomControl {
public:
    explicit TRowList(TComponent* AOwner);
    ~TRowList() override;

    /// Height of a row in pixels; 20 at first.
    [[nodiscard]] int GetRowHeight() const { return FRowHeight; }
    void SetRowHeight(int value);
    /// Shows these rows; the chosen one stays chosen by its place.
    void SetRows(std::vector<TListRow> rows);
    [[nodiscard]] const std::vector<TListRow>& Rows() const { return FRows; }
    [[nodiscard]] int Count() const { return static_cast<int>(FRows.size()); }
    /// The place of the chosen row, or -1.
    [[nodiscard]] int GetChosen() const { return FChosen; }
    /// Chooses and brings the row into view. Raises `OnChoose` for another row than before.
    void SetChosen(int value);
    [[nodiscard]] TRect RowRect(int index) const;

    /// Edits the text of the chosen row where it stands, when `OnEdited` is bound.
    void BeginEdit();
    [[nodiscard]] bool IsEditing() const;
    /// Takes over what was typed, or gives it up. True when there was something to take over.
    bool EndEdit(bool accept);

    /// Pixels at the start of each row that `OnDrawPicture` draws.
    int PictureWidth = 0;
    TEvent<void(TCanvas&, const TRect&, int)> OnDrawPicture;

    /// Another row was chosen.
    TEvent<void()> OnChoose;
    /// Another text was typed for the row.
    TEvent<void(int, const String&)> OnEdited;
    /// The row was dragged and shall stand before another one (at the end for `Count()`). Unbound, rows can't
    /// be dragged.
    TEvent<void(int, int)> OnMoveRow;

protected:
    void Paint() override;
    void Dispatch(TMessage& message) override;
    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
    void MouseMove(TShiftState shift, int x, int y) override;
    void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;
    void DblClick() override;
    void KeyDown(WORD& key, TShiftState shift) override;

private:
    static constexpr int None = -1;
    void DrawRow(int index);
    void DrawDropLine();
    [[nodiscard]] int TextLeft(int index) const;
    [[nodiscard]] int DropPlaceAt(int y) const;
    void EndDrag();
    void EditorKeyDown(TObject* sender, WORD& key, TShiftState shift);
    void EditorExit(TObject* sender);

    std::vector<TListRow> FRows;
    int FRowHeight = 20;
    int FChosen = None;
    int FPressedY = None;    ///< Where a press began that may become a drag.
    int FDropBefore = None;  ///< The row before which the dragged one would come now.
    TValueEdit* FEditor;
};

}  // namespace designer
