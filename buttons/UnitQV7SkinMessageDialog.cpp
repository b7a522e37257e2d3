#include "buttons/UnitQV7SkinMessageDialog.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/graphics/ScreenCanvas.h"
#include "platform/vcl/graphics/TextLayout.h"
#include "platform/vcl/stdctrls/Image.h"
#include "platform/vcl/stdctrls/Label.h"

namespace qv7skin {
namespace {

constexpr int LeastWidth = 420;
constexpr int MostWidth = 640;
constexpr int Margin = 16;
constexpr int Gap = 12;
constexpr int ChoiceMargin = 8;
constexpr int ChoicePadding = 9;
constexpr int ChoiceSpacing = 9;
/// Where the icon and the arrows of the choices stand: behind the margin of the buttons.
constexpr int IconLeft = ChoiceMargin + 3;

/// Adds the lines of a paragraph, broken between words where that keeps them within the width.
void BreakParagraph(const String& paragraph, TCanvas& canvas, int width, TStrings& lines) {
    String line;
    for (std::size_t at = 0; at < paragraph.size();) {
        const std::size_t end = std::min(paragraph.find(L' ', at), paragraph.size());
        const String word = paragraph.substr(at, end - at);
        const String longer = line.empty() ? word : line + L' ' + word;
        const bool fits = line.empty() || canvas.TextWidth(longer) <= width;
        if (!fits) lines.Add(line);
        line = fits ? longer : word;
        at = end + 1;
    }
    lines.Add(line);
}

/// Breaks the lines of a text that are wider than that many pixels.
void BreakLines(const TStrings& text, const TFont& font, int width, TStrings& lines) {
    TScreenCanvas canvas;
    canvas.SetFont(font);
    for (int i = 0; i < text.GetCount(); ++i)
        BreakParagraph(text.Get(i), canvas, width, lines);
}

/// A dialog for the length of a scope. The active form owns it for its place on the screen, and may take it
/// along if it is freed meanwhile.
class TShownDialog {
public:
    TShownDialog() : FDialog(new TfrmQV7SkinMessageDialog(Screen().GetActiveForm())), FGuard(*FDialog) {}
    ~TShownDialog() {
        if (FGuard.IsAlive()) delete FDialog;
    }
    TShownDialog(const TShownDialog&) = delete;
    TShownDialog& operator=(const TShownDialog&) = delete;
    TfrmQV7SkinMessageDialog* operator->() const { return FDialog; }

private:
    TfrmQV7SkinMessageDialog* FDialog;
    TLifeGuard FGuard;
};

TLabel* AddLabel(TForm& form, int size) {
    auto* label = new TLabel(&form);
    label->SetWordWrap(true);
    label->SetShowAccelChar(false);
    label->GetFont().SetName(L"Tahoma");
    label->GetFont().SetSize(size);
    label->SetParent(&form);
    return label;
}

}  // namespace

const TMetaClass& TfrmQV7SkinMessageDialog::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TfrmQV7SkinMessageDialog>(L"TfrmQV7SkinMessageDialog", TForm::StaticClass());
    return meta;
}

TfrmQV7SkinMessageDialog::TfrmQV7SkinMessageDialog(TComponent* AOwner) : TForm(AOwner) {
    SetBorderStyle(bsDialog);
    SetBorderIcons({biSystemMenu});
    SetColor(clWhite);
    SetPopupMode(pmAuto);
    SetPosition(dynamic_cast<TCustomForm*>(AOwner) ? poOwnerFormCenter : poScreenCenter);
    FImage = new TImage(this);
    FImage->SetParent(this);
    FText = AddLabel(*this, 12);
    FText->GetFont().SetColor(0x00303030);
    FDetail = AddLabel(*this, 8);
    FDetail->GetFont().SetColor(0x00535353);
    FArrows = new TImageList(this);
}

TfrmQV7SkinMessageDialog::~TfrmQV7SkinMessageDialog() = default;

String TfrmQV7SkinMessageDialog::GetMessageText() const {
    return FText->GetCaption();
}

void TfrmQV7SkinMessageDialog::SetMessageText(const String& Value) {
    FText->SetCaption(Value);
}

String TfrmQV7SkinMessageDialog::GetDetail() const {
    return FDetail->GetCaption();
}

void TfrmQV7SkinMessageDialog::SetDetail(const String& Value) {
    FDetail->SetCaption(Value);
}

void TfrmQV7SkinMessageDialog::SetMessageIcon(TQV7SkinMessageIcon Value) {
    FMessageIcon = Value;
    FImage->SetVisible(Value != msgiNone);
}

TQV7SkinButtonMsgDlg& TfrmQV7SkinMessageDialog::AddChoice(const TQV7SkinMessageChoice& Choice) {
    auto* button = new TQV7SkinButtonMsgDlg(this);
    button->SetCaption(Choice.Caption);
    button->GetDescription().SetText(Choice.Description);
    button->SetModalResult(Choice.Result);
    button->SetDefault(Choice.Default);
    button->SetCancel(Choice.Cancel);
    button->SetEnabled(Choice.Enabled);
    button->SetSpacing(ChoiceSpacing);
    // The choice that Enter takes looks like the one under the mouse.
    button->SetDrawHoveredIfFocused(true);
    button->SetDrawFocusedRect(false);
    button->SetImageList(FArrows);
    button->SetParent(this);
    FChoices.push_back(button);
    return *button;
}

void TfrmQV7SkinMessageDialog::Notification(TComponent* component, TOperation operation) {
    TForm::Notification(component, operation);
    if (operation == opRemove)
        std::erase_if(FChoices, [&](const TComponent* choice) { return choice == component; });
}

// --- places

int TfrmQV7SkinMessageDialog::NeededWidth() const {
    int width = LeastWidth;
    for (const TQV7SkinButtonMsgDlg* choice : FChoices) {
        TScreenCanvas canvas;
        canvas.SetFont(choice->GetFont());
        const TRect area = choice->GetTextArea();
        const int around = area.Left + choice->GetClientWidth() - area.Right + 2 * ChoiceMargin;
        width = std::max(width, around + canvas.TextWidth(StripHotkey(choice->GetCaption())));
    }
    return std::min(width, MostWidth);
}

/// Returns where the choices begin.
int TfrmQV7SkinMessageDialog::ArrangeMessage(int width) {
    int left = IconLeft;
    int bottom = Margin;
    if (FMessageIcon != msgiNone) {
        DrawMessageIcon(FImage->GetPicture().GetBitmap(), FMessageIcon, GetColor());
        FImage->SetBounds(IconLeft, Margin, MessageIconSize, MessageIconSize);
        left += MessageIconSize + Gap;
        bottom += MessageIconSize;
    }
    int top = Margin;
    for (TLabel* label : {FText, FDetail}) {
        label->SetVisible(!label->GetCaption().empty());
        if (!label->GetVisible()) continue;
        label->SetBounds(left, top, width - left - Margin, label->GetHeight());
        label->SetAutoSize(false);
        label->SetAutoSize(true);
        top = label->GetTop() + label->GetHeight() + Gap / 2;
    }
    // A single line stands beside the middle of the icon.
    if (!FDetail->GetVisible() && FMessageIcon != msgiNone && FText->GetHeight() < MessageIconSize)
        FText->SetTop(Margin + (MessageIconSize - FText->GetHeight()) / 2);
    return std::max(top - Gap / 2, bottom) + Gap;
}

/// Returns where the last one ends.
int TfrmQV7SkinMessageDialog::ArrangeChoices(int top, int width) {
    for (TQV7SkinButtonMsgDlg* choice : FChoices) {
        choice->SetWidth(width - 2 * ChoiceMargin);
        static_cast<void>(choice->GetTextHeight());  // brings the description's font up to date
        TStringList lines;
        BreakLines(choice->GetDescription(), choice->GetFontDescription(), choice->GetTextArea().Width(),
                   lines);
        if (!lines.Equals(choice->GetDescription())) choice->SetDescription(lines);
        const int images = choice->GetImageList() ? choice->GetImageList()->GetHeight() : 0;
        const int height = std::max(choice->GetTextHeight(), images) + 2 * ChoicePadding;
        choice->SetBounds(ChoiceMargin, top, choice->GetWidth(), height);
        top += height;
    }
    return top;
}

void TfrmQV7SkinMessageDialog::Arrange() {
    if (!FChoices.empty()) MakeChoiceArrows(*FArrows, GetColor(), FChoices.front()->GetColorHovered());
    const int width = NeededWidth();
    const int bottom = ArrangeChoices(ArrangeMessage(width), width);
    SetClientWidth(width);
    SetClientHeight(bottom + ChoiceMargin);
}

// --- choosing

TQV7SkinButtonMsgDlg* TfrmQV7SkinMessageDialog::CancelChoice() const {
    const auto found = std::ranges::find_if(FChoices, &TQV7SkinButtonMsgDlg::GetCancel);
    return found == FChoices.end() ? nullptr : *found;
}

/// Sees to it that there is a choice with the focus, and one for Esc where that is no question.
void TfrmQV7SkinMessageDialog::PrepareChoices() {
    if (FChoices.size() == 1) FChoices.front()->SetCancel(true);
    SetBorderIcons(CancelChoice() || FChoices.empty() ? TBorderIcons{biSystemMenu} : TBorderIcons{});
    const auto canFocus = [](const TQV7SkinButtonMsgDlg* choice) { return choice->GetEnabled(); };
    auto first = std::ranges::find_if(FChoices, [&](const TQV7SkinButtonMsgDlg* choice) {
        return choice->GetDefault() && canFocus(choice);
    });
    if (first == FChoices.end()) first = std::ranges::find_if(FChoices, canFocus);
    if (first != FChoices.end()) SetActiveControl(*first);
}

int TfrmQV7SkinMessageDialog::ShowModal() {
    Arrange();
    PrepareChoices();
    return TForm::ShowModal();
}

void TfrmQV7SkinMessageDialog::Dispatch(TMessage& message) {
    if (message.Msg != WM_CLOSE || FChoices.empty()) return TForm::Dispatch(message);
    TQV7SkinButtonMsgDlg* cancel = CancelChoice();
    if (cancel && cancel->GetEnabled()) cancel->Click();
}

TModalResult QV7SkinMessageDialog(const String& Caption, const String& Text, TQV7SkinMessageIcon Icon,
                                  std::span<const TQV7SkinMessageChoice> Choices, const String& Detail) {
    const TShownDialog dialog;
    dialog->SetCaption(Caption);
    dialog->SetMessageText(Text);
    dialog->SetDetail(Detail);
    dialog->SetMessageIcon(Icon);
    for (const TQV7SkinMessageChoice& choice : Choices)
        dialog->AddChoice(choice);
    return dialog->ShowModal();
}

}  // namespace qv7skin
