#include "designer/dialogs/RowList.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "designer/inspector/ValueEdit.h"
#include "platform/vcl/controls/ScrollingWinControl.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/Pen.h"
#include "skin/UnitQV7SkinColors.h"

namespace designer {
namespace {

constexpr int Indent = 18;
constexpr int Margin = 6;
/// Pixels that the mouse moves with its button down before a drag begins.
constexpr int DragThreshold = 4;
constexpr TColor ChosenGround = 0x00F0E7EA;

/// Scrolls the frame just so far that the rectangle of its only child is seen.
void ScrollIntoView(TScrollingWinControl& frame, const TRect& place) {
    TControlScrollBar& bar = frame.GetVertScrollBar();
    const int height = frame.GetClientHeight();
    if (place.Top < bar.GetPosition())
        bar.SetPosition(place.Top);
    else if (place.Bottom > bar.GetPosition() + height)
        bar.SetPosition(place.Bottom - height);
}

}  // namespace

TRowList::TRowList(TComponent* AOwner) : TCustomControl(AOwner), FEditor(new TValueEdit(*this)) {
    // A drag holds the mouse itself; the end of a press must not take it away before the drop.
    ControlStyle = ControlStyle + TControlStyle{csOpaque} - TControlStyle{csCaptureMouse};
    SetColor(GetQV7SkinColorCaption());
    SetDoubleBuffered(true);
    SetTabStop(true);
    SetHeight(FRowHeight);
    FEditor->OnKeyDown = {this, &TRowList::EditorKeyDown};
    FEditor->OnExit = {this, &TRowList::EditorExit};
}

TRowList::~TRowList() {
    FEditor->OnExit.Clear();
}

void TRowList::SetRowHeight(int value) {
    FRowHeight = value;
    SetRows(std::exchange(FRows, {}));
}

void TRowList::SetRows(std::vector<TListRow> rows) {
    FEditor->Hide();
    FRows = std::move(rows);
    FChosen = std::min(FChosen, Count() - 1);
    SetHeight(std::max(Count(), 1) * FRowHeight);
    Invalidate();
}

void TRowList::SetChosen(int value) {
    const TLifeGuard guard(*this);
    EndEdit(true);
    if (!guard.IsAlive()) return;
    const int chosen = std::clamp(value, None, Count() - 1);
    const bool isOther = chosen != FChosen;
    FChosen = chosen;
    Invalidate();
    auto* frame = dynamic_cast<TScrollingWinControl*>(GetParent());
    if (frame && chosen != None) ScrollIntoView(*frame, RowRect(chosen));
    if (isOther) OnChoose();
}

TRect TRowList::RowRect(int index) const {
    return TRect::OfSize(0, index * FRowHeight, GetWidth(), FRowHeight);
}

int TRowList::TextLeft(int index) const {
    return Margin + FRows[static_cast<std::size_t>(index)].Depth * Indent +
           (PictureWidth > 0 ? PictureWidth + Margin : 0);
}

// --- painting

void TRowList::Paint() {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(GetColor());
    canvas.FillRect(GetClientRect());
    const TRect area = canvas.GetClipRect();
    const int last = std::min(Count() - 1, (area.Bottom - 1) / FRowHeight);
    for (int i = std::max(0, area.Top / FRowHeight); i <= last; ++i)
        DrawRow(i);
    DrawDropLine();
}

void TRowList::DrawRow(int index) {
    TCanvas& canvas = GetCanvas();
    const TListRow& row = FRows[static_cast<std::size_t>(index)];
    const TRect rect = RowRect(index);
    if (index == FChosen) {
        canvas.GetBrush().SetColor(Focused() ? GetQV7SkinColorLinkText() : ChosenGround);
        canvas.FillRect(rect);
    }
    if (PictureWidth > 0)
        OnDrawPicture(canvas, TRect::OfSize(Margin + row.Depth * Indent, rect.Top, PictureWidth, FRowHeight),
                      index);
    const bool isLight = index == FChosen && Focused();
    canvas.GetBrush().SetStyle(bsClear);
    TFont& font = canvas.GetFont();
    font.Assign(&GetFont());
    font.SetColor(isLight       ? GetQV7SkinColorCaption()
                  : row.IsFaint ? static_cast<TColor>(clGrayText)
                                : GetQV7SkinColorWindowText());
    constexpr UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
    TRect text{TextLeft(index), rect.Top, rect.Right - Margin, rect.Bottom};
    if (!row.IsLine) canvas.TextRect(text, row.Text, format);
    if (!row.Note.empty()) {
        if (!isLight) font.SetColor(static_cast<TColor>(clGrayText));
        canvas.TextRect(text, row.Note, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_RIGHT);
    }
    canvas.GetBrush().SetStyle(bsSolid);
    if (!row.IsLine) return;
    canvas.GetBrush().SetColor(font.GetColor());
    canvas.FillRect({text.Left, (rect.Top + rect.Bottom) / 2, text.Right, (rect.Top + rect.Bottom) / 2 + 1});
}

/// Shows between which rows the dragged one would come.
void TRowList::DrawDropLine() {
    if (FDropBefore == None) return;
    TCanvas& canvas = GetCanvas();
    const int y = std::clamp(FDropBefore * FRowHeight, 1, GetHeight() - 1);
    canvas.GetBrush().SetColor(GetQV7SkinColorLinkText());
    canvas.FillRect({0, y - 1, GetWidth(), y + 1});
}

// --- mouse

void TRowList::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TCustomControl::MouseDown(button, shift, x, y);
    if (!guard.IsAlive() || button != mbLeft) return;
    const int index = y / FRowHeight;
    if (CanFocus()) SetFocus();
    if (index >= Count()) return;
    SetChosen(index);
    if (!guard.IsAlive() || !OnMoveRow) return;
    FPressedY = y;
    SetMouseCapture(true);
}

void TRowList::MouseMove(TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TCustomControl::MouseMove(shift, x, y);
    if (!guard.IsAlive() || FPressedY == None) return;
    if (FDropBefore == None && std::abs(y - FPressedY) < DragThreshold) return;
    const int before = DropPlaceAt(y);
    if (before == FDropBefore) return;
    FDropBefore = before;
    Invalidate();
}

int TRowList::DropPlaceAt(int y) const {
    return std::clamp((y + FRowHeight / 2) / FRowHeight, 0, Count());
}

void TRowList::MouseUp(TMouseButton button, TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TCustomControl::MouseUp(button, shift, x, y);
    if (!guard.IsAlive() || button != mbLeft) return;
    const int before = FDropBefore;
    EndDrag();
    // Beside itself a row stays where it is.
    if (before != None && before != FChosen && before != FChosen + 1) OnMoveRow(FChosen, before);
}

void TRowList::EndDrag() {
    if (std::exchange(FDropBefore, None) != None) Invalidate();
    if (std::exchange(FPressedY, None) != None) SetMouseCapture(false);
}

void TRowList::DblClick() {
    const TLifeGuard guard(*this);
    TCustomControl::DblClick();
    if (!guard.IsAlive()) return;
    EndDrag();
    BeginEdit();
}

// --- keys

void TRowList::Dispatch(TMessage& message) {
    switch (message.Msg) {
        case WM_GETDLGCODE:
            message.Result = DLGC_WANTARROWS;
            return;
        case WM_CAPTURECHANGED:
            TCustomControl::Dispatch(message);
            EndDrag();
            return;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            Invalidate();
            break;
        default:
            break;
    }
    TCustomControl::Dispatch(message);
}

void TRowList::KeyDown(WORD& key, TShiftState shift) {
    const TLifeGuard guard(*this);
    TCustomControl::KeyDown(key, shift);
    if (!guard.IsAlive() || key == 0 || Count() == 0 || shift.Contains(ssCtrl)) return;
    switch (key) {
        case VK_UP:
            return SetChosen(std::max(FChosen - 1, 0));
        case VK_DOWN:
            return SetChosen(FChosen + 1);
        case VK_HOME:
            return SetChosen(0);
        case VK_END:
            return SetChosen(Count() - 1);
        case VK_F2:
            return BeginEdit();
        default:
            return;
    }
}

// --- editing a text where it stands

bool TRowList::IsEditing() const {
    return FEditor->GetVisible();
}

void TRowList::BeginEdit() {
    if (FChosen == None || !OnEdited) return;
    const TRect rect = RowRect(FChosen);
    const int left = TextLeft(FChosen);
    FEditor->SetBounds(left, rect.Top + 2, rect.Right - left - 2, FRowHeight - 4);
    FEditor->SetText(FRows[static_cast<std::size_t>(FChosen)].Text);
    FEditor->Show();
    FEditor->SelectAll();
    FEditor->SetFocus();
}

bool TRowList::EndEdit(bool accept) {
    if (!IsEditing()) return false;
    const TLifeGuard guard(*this);
    const bool hadFocus = FEditor->Focused();
    const String text = FEditor->GetText();
    FEditor->Hide();
    if (hadFocus && CanFocus()) SetFocus();
    if (!guard.IsAlive() || !accept || text == FRows[static_cast<std::size_t>(FChosen)].Text) return false;
    OnEdited(FChosen, text);
    return true;
}

void TRowList::EditorKeyDown(TObject*, WORD& key, TShiftState) {
    const WORD pressed = std::exchange(key, 0);
    switch (pressed) {
        case VK_RETURN:
        case VK_ESCAPE:
            EndEdit(pressed == VK_RETURN);
            return;
        case VK_UP:
        case VK_DOWN: {
            const TLifeGuard guard(*this);
            const int next = FChosen + (pressed == VK_DOWN ? 1 : -1);
            EndEdit(true);
            if (guard.IsAlive() && next >= 0) SetChosen(next);
            return;
        }
        default:
            key = pressed;
    }
}

void TRowList::EditorExit(TObject*) {
    EndEdit(true);
}

}  // namespace designer
