#include "designer/inspector/ValueList.h"

#include <algorithm>
#include <utility>

#include "designer/dialogs/RowList.h"
#include "platform/vcl/controls/Mouse.h"
#include "platform/vcl/controls/ParentForm.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/Pen.h"
#include "platform/vcl/stdctrls/ScrollBox.h"
#include "skin/UnitQV7SkinColors.h"

namespace designer {
namespace {

constexpr int SampleWidth = 22;
constexpr int FrameWidth = 1;
constexpr int TextMargin = 6;
constexpr wchar_t Backspace = 8;
constexpr wchar_t Space = 32;

int WorkAreaBottom(TPoint place) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(::MonitorFromPoint({place.X, place.Y}, MONITOR_DEFAULTTONEAREST), &info);
    return static_cast<int>(info.rcWork.bottom);
}

}  // namespace

TValueList::TValueList(TComponent* AOwner)
    : TQV7SkinPopupForm(AOwner), FBox(new TScrollBox(this)), FList(new TRowList(FBox)) {
    SetResizeDirection({});
    SetKeyPreview(true);
    FBox->SetBorderStyle(bsNone);
    FBox->SetColor(GetQV7SkinColorCaption());
    FBox->SetAlign(alClient);
    FBox->SetParent(this);
    FList->SetAlign(alTop);
    FList->SetParent(FBox);
    FList->OnDrawPicture = {this, &TValueList::DrawColor};
    FList->OnMouseMove = {this, &TValueList::ListMouseMove};
    FList->OnKeyDown = {this, &TValueList::ListKeyDown};
    FList->OnClick = [this](TObject*) { Take(); };
}

void TValueList::Drop(TControl& control, const TRect& place, std::vector<String> values, const String& chosen,
                      bool showColors) {
    FTyped.clear();
    FPointer = Mouse().GetCursorPos();
    FList->PictureWidth = showColors ? SampleWidth : 0;
    const auto present = std::ranges::find(values, chosen);
    const int index = present == values.end() ? -1 : static_cast<int>(present - values.begin());
    std::vector<TListRow> rows;
    for (String& value : values)
        rows.push_back({.Text = std::move(value)});
    const int shown = std::clamp(static_cast<int>(rows.size()), 1, MaxRows);
    FList->SetRows(std::move(rows));

    TParentForm* form = GetParentForm(&control);
    auto* host = form ? dynamic_cast<TCustomForm*>(&form->FormControl()) : nullptr;
    if (host != GetAttachedTo()) SetAttachedTo(host);
    const int width = std::max(place.Width(), NeededWidth());
    const int height = shown * FList->GetRowHeight() + 2 * FrameWidth;
    const TPoint below = control.ClientToScreen({place.Left, place.Bottom});
    const TPoint above = control.ClientToScreen({place.Left, place.Top});
    const bool fits = below.Y + height <= WorkAreaBottom(below);
    SetBounds(below.X, fits ? below.Y : above.Y - height, width, height);
    Show();
    // The host keeps the look of the active window.
    if (host && host->HandleAllocated()) ::SendMessageW(host->WindowHandle(), WM_NCACTIVATE, TRUE, 0);
    SetActiveControl(FList);
    FList->SetChosen(index);
}

/// What the longest value takes, with a scroll bar beside it.
int TValueList::NeededWidth() {
    int widest = 0;
    for (const TListRow& row : FList->Rows())
        widest = std::max(widest, GetCanvas().TextWidth(row.Text));
    return FList->PictureWidth + widest + 3 * TextMargin + ::GetSystemMetrics(SM_CXVSCROLL);
}

void TValueList::Take() {
    const int index = FList->GetChosen();
    if (index < 0 || !GetVisible()) return;
    const String value = FList->Rows()[static_cast<std::size_t>(index)].Text;
    Close();
    OnTake(value);
}

void TValueList::ListMouseMove(TObject*, TShiftState, int, int y) {
    const TPoint pointer = Mouse().GetCursorPos();
    if (pointer == std::exchange(FPointer, pointer)) return;
    const int index = y / FList->GetRowHeight();
    if (index != FList->GetChosen() && index < FList->Count()) FList->SetChosen(index);
}

void TValueList::ListKeyDown(TObject*, WORD& key, TShiftState) {
    const int step = MaxRows - 1;
    switch (key) {
        case VK_PRIOR:
            FList->SetChosen(std::max(FList->GetChosen() - step, 0));
            break;
        case VK_NEXT:
            FList->SetChosen(FList->GetChosen() + step);
            break;
        case VK_RETURN:
            key = 0;
            return Take();
        default:
            return;
    }
    FTyped.clear();
}

void TValueList::KeyPress(wchar_t& key) {
    const TLifeGuard guard(*this);
    const bool isEscape = key == VK_ESCAPE;
    if (key == Backspace || key > Space) ChooseTyped(key);
    TQV7SkinPopupForm::KeyPress(key);
    if (guard.IsAlive() && isEscape) OnLeave();
}

/// Chooses the first value that begins with what was typed; a letter with which none does begins anew.
void TValueList::ChooseTyped(wchar_t character) {
    if (character == Backspace) {
        if (!FTyped.empty()) FTyped.pop_back();
        return;
    }
    for (const String& typed : {FTyped + character, String(1, character)}) {
        for (int i = 0; i < FList->Count(); ++i) {
            const String& text = FList->Rows()[static_cast<std::size_t>(i)].Text;
            if (!SameText(StringView(text).substr(0, typed.size()), typed)) continue;
            FTyped = typed;
            return FList->SetChosen(i);
        }
    }
}

void TValueList::DrawColor(TCanvas& canvas, const TRect& place, int index) {
    const TRect sample{place.Left, place.Top + 4, place.Right, place.Bottom - 4};
    const String& name = FList->Rows()[static_cast<std::size_t>(index)].Text;
    const auto color = std::ranges::find_if(
        ColorIdentifiers(), [&name](const TIdentifier& id) { return SameText(id.Name, name); });
    if (color == ColorIdentifiers().end()) return;
    canvas.GetPen().SetColor(clGray);
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(static_cast<TColor>(color->Value));
    canvas.Rectangle(sample.Left, sample.Top, sample.Right, sample.Bottom);
}

}  // namespace designer
