#include "designer/inspector/InspectorGrid.h"

#include <algorithm>

#include "designer/inspector/PropertyEditors.h"
#include "designer/inspector/PropertyText.h"
#include "designer/inspector/ValueEdit.h"
#include "designer/inspector/ValueList.h"
#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/controls/HintWindow.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/Pen.h"
#include "platform/vcl/menus/MenuItem.h"
#include "skin/UnitQV7SkinColors.h"

namespace designer {
namespace {

constexpr int Indent = 12;
constexpr int ExpanderSize = 9;
constexpr int ButtonWidth = 18;
constexpr TColor ChosenGround = 0x00F0E7EA;
constexpr TColor LineColor = 0x00F0EAE7;
/// Pixels between the line before the values and their text.
constexpr int ValueMargin = 3;
/// The last of the colours to choose from opens the window for all others.
constexpr wchar_t OtherColor[] = L"Andere …";

/// A triangle that points down, in the middle of the place.
void DrawDropMark(TCanvas& canvas, const TRect& place) {
    const int x = (place.Left + place.Right) / 2;
    const int y = (place.Top + place.Bottom) / 2 - 2;
    const TPoint shape[] = {{x - 3, y}, {x + 3, y}, {x, y + 3}};
    canvas.GetPen().SetColor(GetQV7SkinColorLinkText());
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(GetQV7SkinColorLinkText());
    canvas.Polygon(shape);
}

}  // namespace

const TMetaClass& TInspectorGrid::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TInspectorGrid>(L"TInspectorGrid", TCustomControl::StaticClass())
            .Property(L"Align", &TInspectorGrid::GetAlign, &TInspectorGrid::SetAlign, alNone);
    return meta;
}

TInspectorGrid::TInspectorGrid(TComponent* AOwner)
    : TCustomControl(AOwner), FEditor(new TValueEdit(*this)), FMenu(new TQV7SkinPopupMenu(this)) {
    ControlStyle = ControlStyle + TControlStyle{csOpaque};
    SetColor(GetQV7SkinColorCaption());
    SetDoubleBuffered(true);
    FEditor->OnKeyDown = {this, &TInspectorGrid::EditorKeyDown};
    FEditor->OnExit = {this, &TInspectorGrid::EditorExit};
    FEditor->OnDblClick = {this, &TInspectorGrid::EditorDblClick};
    FEditor->OnMouseDown = {this, &TInspectorGrid::EditorMouseDown};
}

TInspectorGrid::~TInspectorGrid() {
    FEditor->OnExit.Clear();
}

void TInspectorGrid::SetList(TPropertyList* list) {
    Accept();
    FList = list;
    UpdateLines();
}

void TInspectorGrid::UpdateLines() {
    const int count = FList ? static_cast<int>(FList->Lines().size()) : 0;
    SetHeight(std::max(count, 1) * LineHeight);
    PlaceEditor();
    Invalidate();
}

int TInspectorGrid::IndexOfChosen() const {
    if (!FList || FChosen.empty()) return -1;
    const auto& lines = FList->Lines();
    const auto place = std::ranges::find(lines, FChosen, &TPropertyLine::Path);
    return place == lines.end() ? -1 : static_cast<int>(place - lines.begin());
}

const TPropertyLine* TInspectorGrid::ChosenLine() const {
    const int index = IndexOfChosen();
    return index < 0 ? nullptr : &FList->Lines()[static_cast<std::size_t>(index)];
}

void TInspectorGrid::Choose(const String& path) {
    Accept();
    FChosen = path;
    PlaceEditor();
    Invalidate();
}

TRect TInspectorGrid::LineRect(int index) const {
    return TRect::OfSize(0, index * LineHeight, GetWidth(), LineHeight);
}

TRect TInspectorGrid::ButtonRect(int index) const {
    const TRect line = LineRect(index);
    return {line.Right - ButtonWidth, line.Top, line.Right, line.Bottom - 1};
}

bool TInspectorGrid::HasButton(const TPropertyLine& line) const {
    return HasValueEditor(line) || !FList->Choices(line).empty();
}

// --- painting

void TInspectorGrid::Paint() {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(GetColor());
    canvas.FillRect(GetClientRect());
    if (!FList) return;
    const TRect area = canvas.GetClipRect();
    const int count = static_cast<int>(FList->Lines().size());
    const int first = std::max(0, area.Top / LineHeight);
    const int last = std::min(count - 1, (area.Bottom - 1) / LineHeight);
    for (int i = first; i <= last; ++i)
        DrawLine(i);
}

void TInspectorGrid::DrawLine(int index) {
    TCanvas& canvas = GetCanvas();
    const TPropertyLine& line = FList->Lines()[static_cast<std::size_t>(index)];
    const TRect rect = LineRect(index);
    const bool isChosen = line.Path == FChosen;
    if (isChosen) {
        canvas.GetBrush().SetColor(ChosenGround);
        canvas.FillRect(rect);
    }
    canvas.GetPen().SetColor(LineColor);
    canvas.MoveTo(rect.Left, rect.Bottom - 1);
    canvas.LineTo(rect.Right, rect.Bottom - 1);
    canvas.MoveTo(ValueLeft() - 1, rect.Top);
    canvas.LineTo(ValueLeft() - 1, rect.Bottom);

    const int left = 4 + line.Depth * Indent;
    if (line.CanExpand)
        DrawExpander(
            TRect::OfSize(left, rect.Top + (LineHeight - ExpanderSize) / 2, ExpanderSize, ExpanderSize),
            line.IsExpanded);
    canvas.GetBrush().SetStyle(bsClear);
    TFont& font = canvas.GetFont();
    font.Assign(&GetFont());
    font.SetColor(GetQV7SkinColorWindowText());
    constexpr UINT format = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
    TRect name{left + ExpanderSize + 4, rect.Top, ValueLeft() - 3, rect.Bottom - 1};
    canvas.TextRect(name, line.Name, format);
    font.SetStyle(line.IsDefault ? TFontStyles{} : TFontStyles{fsBold});
    if (line.IsReadOnly) font.SetColor(clGrayText);
    TRect value{ValueLeft() + ValueMargin, rect.Top, rect.Right - 2, rect.Bottom - 1};
    if (isChosen && HasButton(line)) value.Right -= ButtonWidth;
    canvas.TextRect(value, line.Text, format);
    canvas.GetBrush().SetStyle(bsSolid);
    if (!isChosen || !HasButton(line)) return;
    TRect button = ButtonRect(index);
    if (line.Row->Kind() != TPropertyKind::Nested) return DrawDropMark(canvas, button);
    font.SetStyle({});
    font.SetColor(GetQV7SkinColorLinkText());
    canvas.GetBrush().SetStyle(bsClear);
    canvas.TextRect(button, L"…", DT_SINGLELINE | DT_VCENTER | DT_CENTER);
    canvas.GetBrush().SetStyle(bsSolid);
}

void TInspectorGrid::DrawExpander(const TRect& box, bool isExpanded) {
    TCanvas& canvas = GetCanvas();
    canvas.GetBrush().SetColor(GetQV7SkinColorCaption());
    canvas.GetPen().SetColor(GetQV7SkinColorLinkText());
    canvas.Rectangle(box.Left, box.Top, box.Right, box.Bottom);
    const int middleX = box.Left + ExpanderSize / 2;
    const int middleY = box.Top + ExpanderSize / 2;
    canvas.MoveTo(box.Left + 2, middleY);
    canvas.LineTo(box.Right - 2, middleY);
    if (isExpanded) return;
    canvas.MoveTo(middleX, box.Top + 2);
    canvas.LineTo(middleX, box.Bottom - 2);
}

// --- input

void TInspectorGrid::Dispatch(TMessage& message) {
    if (message.Msg == WM_SETFOCUS && FEditor->GetVisible()) {
        TCustomControl::Dispatch(message);
        FEditor->SetFocus();
        return;
    }
    TCustomControl::Dispatch(message);
    if (message.Msg == CM_HINTSHOW) ShowHint(*reinterpret_cast<THintInfo*>(message.LParam));
}

/// A name or value that is cut off has all of it as its hint.
void TInspectorGrid::ShowHint(THintInfo& info) const {
    info.HintStr.clear();
    const int index = info.CursorPos.Y / LineHeight;
    if (!FList || index >= static_cast<int>(FList->Lines().size())) return;
    const TPropertyLine& line = FList->Lines()[static_cast<std::size_t>(index)];
    const bool isName = info.CursorPos.X < ValueLeft();
    info.CursorRect = LineRect(index);
    (isName ? info.CursorRect.Right : info.CursorRect.Left) = ValueLeft();
    TCanvas& canvas = const_cast<TInspectorGrid*>(this)->GetCanvas();
    canvas.GetFont().Assign(&GetFont());
    canvas.GetFont().SetStyle(line.IsDefault || isName ? TFontStyles{} : TFontStyles{fsBold});
    const String& text = isName ? line.Name : line.Text;
    const int start = isName ? 8 + line.Depth * Indent + ExpanderSize : ValueLeft() + ValueMargin;
    if (start + canvas.TextWidth(text) > info.CursorRect.Right - ValueMargin) info.HintStr = text;
}

void TInspectorGrid::Resize() {
    const TLifeGuard guard(*this);
    TCustomControl::Resize();
    if (guard.IsAlive()) PlaceEditor();
}

void TInspectorGrid::MouseDown(TMouseButton button, TShiftState shift, int x, int y) {
    const TLifeGuard guard(*this);
    TCustomControl::MouseDown(button, shift, x, y);
    if (!guard.IsAlive() || !FList || (button != mbLeft && button != mbRight)) return;
    const int index = y / LineHeight;
    if (index >= static_cast<int>(FList->Lines().size())) return;
    const TPropertyLine line = FList->Lines()[static_cast<std::size_t>(index)];
    Choose(line.Path);
    FPressTime = static_cast<DWORD>(::GetMessageTime());
    if (button == mbRight) return ShowMenu({x, y});
    const int left = 4 + line.Depth * Indent;
    if (line.CanExpand && x >= left && x < left + ExpanderSize) {
        FList->SetExpanded(line.Path, !line.IsExpanded);
        return UpdateLines();
    }
    if (HasButton(line) && ButtonRect(index).Contains({x, y})) return DropDown();
    FocusEditor();
}

void TInspectorGrid::FocusEditor() {
    if (!ChosenLine() && FList && !FList->Lines().empty()) Choose(FList->Lines().front().Path);
    if (FEditor->GetVisible()) FEditor->SetFocus();
}

void TInspectorGrid::AddToMenu(const wchar_t* caption, bool isEnabled, std::function<void()> command) {
    auto* item = new TMenuItem(FMenu);
    item->SetCaption(caption);
    item->SetEnabled(isEnabled);
    item->OnClick = [command = std::move(command)](TObject*) { command(); };
    FMenu->GetItems().Add(item);
}

void TInspectorGrid::ShowMenu(TPoint place) {
    const TPropertyLine* line = ChosenLine();
    if (!line) return;
    const bool canReset = !line->IsDefault && !line->IsReadOnly && line->Element < 0;
    FMenu->GetItems().Clear();
    AddToMenu(L"Auf &Vorgabe zurücksetzen", canReset, [this] { ResetChosen(); });
    AddToMenu(L"&Bearbeiten …", HasValueEditor(*line), [this] {
        if (const TPropertyLine* chosen = ChosenLine()) OnEditValue(*chosen);
    });
    place = ClientToScreen(place);
    FMenu->Popup(place.X, place.Y);
}

void TInspectorGrid::ResetChosen() {
    Try([this](const String& path) { FList->Reset(path); });
}

void TInspectorGrid::DblClick() {
    const TLifeGuard guard(*this);
    TCustomControl::DblClick();
    if (guard.IsAlive()) OpenOrTurn();
}

/// The first press of two may show the editor, which then gets the second.
void TInspectorGrid::EditorMouseDown(TObject*, TMouseButton button, TShiftState, int, int) {
    const DWORD since = static_cast<DWORD>(::GetMessageTime()) - FPressTime;
    if (button == mbLeft && since <= ::GetDoubleClickTime()) OpenOrTurn();
}

void TInspectorGrid::EditorDblClick(TObject*) {
    OpenOrTurn();
}

/// Edits in a window where there is one, opens and closes what holds others, else goes on to the next value.
void TInspectorGrid::OpenOrTurn() {
    const TPropertyLine* line = ChosenLine();
    if (!line) return;
    if (HasValueEditor(*line)) return OnEditValue(*line);
    if (line->CanExpand) {
        FList->SetExpanded(line->Path, !line->IsExpanded);
        return UpdateLines();
    }
    const std::vector<String> choices = FList->Choices(*line);
    if (choices.empty()) return;
    const auto place = std::ranges::find(choices, line->Text);
    SetValue(place == choices.end() || place + 1 == choices.end() ? choices.front() : *(place + 1));
}

void TInspectorGrid::PlaceEditor() {
    const int index = IndexOfChosen();
    const TPropertyLine* line = ChosenLine();
    if (!line || line->IsReadOnly || line->Element >= 0) return FEditor->Hide();
    const TRect rect = LineRect(index);
    const int right = HasButton(*line) ? rect.Right - ButtonWidth : rect.Right - 2;
    const int left = ValueLeft() + ValueMargin;
    FEditor->SetBounds(left, rect.Top + 3, right - left, LineHeight - 5);
    FEditor->SetColor(ChosenGround);
    FEditor->GetFont().SetStyle(line->IsDefault ? TFontStyles{} : TFontStyles{fsBold});
    if (FEditor->GetText() != line->Text) FEditor->SetText(line->Text);
    FEditor->SetModified(false);
    FEditor->Show();
}

void TInspectorGrid::EditorKeyDown(TObject*, WORD& key, TShiftState shift) {
    switch (key) {
        case VK_RETURN:
            Accept();
            FEditor->SelectAll();
            break;
        case VK_ESCAPE:
            if (const TPropertyLine* line = ChosenLine()) FEditor->SetText(line->Text);
            FEditor->SetModified(false);
            FEditor->SelectAll();
            break;
        case VK_UP:
            ChooseBy(-1);
            break;
        case VK_DOWN:
            if (shift.Contains(ssAlt))
                DropDown();
            else
                ChooseBy(1);
            break;
        default:
            return;
    }
    key = 0;
}

void TInspectorGrid::EditorExit(TObject*) {
    Accept();
}

void TInspectorGrid::ChooseBy(int delta) {
    const int count = static_cast<int>(FList->Lines().size());
    const int index = std::clamp(IndexOfChosen() + delta, 0, count - 1);
    Choose(FList->Lines()[static_cast<std::size_t>(index)].Path);
    FocusEditor();
}

void TInspectorGrid::Accept() {
    const TPropertyLine* line = ChosenLine();
    if (!line || FAccepting || !FEditor->GetVisible() || !FEditor->GetModified()) return;
    if (FEditor->GetText() != line->Text) SetValue(FEditor->GetText());
}

void TInspectorGrid::SetValue(const String& text) {
    Try([&](const String& path) { FList->SetText(path, text); });
}

/// Runs a change of the chosen line and tells why it was refused.
void TInspectorGrid::Try(const std::function<void(const String& path)>& change) {
    const TLifeGuard guard(*this);
    FAccepting = true;
    try {
        change(String(FChosen));
    } catch (const Exception& error) {
        FList->Refresh();
        OnRefused(error.Message());
    }
    if (!guard.IsAlive()) return;
    FAccepting = false;
    FEditor->SetModified(false);
    UpdateLines();
}

TValueList& TInspectorGrid::Values() {
    if (FValues) return *FValues;
    FValues = new TValueList(this);
    FValues->OnTake = {this, &TInspectorGrid::TakeValue};
    FValues->OnLeave = {this, &TInspectorGrid::FocusEditor};
    return *FValues;
}

void TInspectorGrid::TakeValue(const String& text) {
    const TLifeGuard guard(*this);
    const TPropertyLine* line = ChosenLine();
    if (line && text == OtherColor)
        OnEditValue(*line);
    else
        SetValue(text);
    if (guard.IsAlive()) FocusEditor();
}

void TInspectorGrid::DropDown() {
    const TPropertyLine* line = ChosenLine();
    if (!line || !HasButton(*line)) return;
    if (line->Row->Kind() == TPropertyKind::Nested) return OnEditValue(*line);
    const bool isColor = IsColorProperty(*line->Row);
    std::vector<String> values = FList->Choices(*line);
    if (isColor) values.emplace_back(OtherColor);
    TRect place = LineRect(IndexOfChosen());
    place.Left = ValueLeft();
    Values().Drop(*this, place, std::move(values), line->Text, isColor);
}

}  // namespace designer
