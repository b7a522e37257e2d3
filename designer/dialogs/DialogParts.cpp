#include "designer/dialogs/DialogParts.h"

#include <array>
#include <utility>

#include "buttons/UnitQV7SkinButton.h"
#include "buttons/UnitQV7SkinMessageDialog.h"
#include "platform/vcl/stdctrls/ScrollBox.h"
#include "skin/UnitQV7SkinColors.h"

namespace designer {

void PrepareDialog(TForm& form, const String& caption, TSize size, bool isSizeable) {
    form.SetCaption(caption);
    form.SetBorderStyle(isSizeable ? bsSizeable : bsDialog);
    form.SetBorderIcons({biSystemMenu});
    form.SetClientWidth(size.Width);
    form.SetClientHeight(size.Height);
    form.SetPosition(poScreenCenter);
    form.SetColor(GetQV7SkinColorBackground());
}

TQV7SkinButton& AddButton(TForm& form, TPoint place, const wchar_t* caption, std::function<void()> command) {
    auto* button = new TQV7SkinButton(&form);
    button->SetCaption(caption);
    button->SetBounds(place.X, place.Y, DialogButtonWidth, DialogButtonHeight);
    button->SetAnchors({akTop, akRight});
    if (command) button->OnClick = [command = std::move(command)](TObject*) { command(); };
    button->SetParent(&form);
    return *button;
}

TQV7SkinButton& AddClosingButton(TForm& form, TPoint place, const wchar_t* caption, TModalResult result) {
    TQV7SkinButton& button = AddButton(form, place, caption, nullptr);
    button.SetAnchors({akRight, akBottom});
    button.SetModalResult(result);
    button.SetDefault(result == mrOk);
    button.SetCancel(result == mrCancel);
    return button;
}

void AddOkAndCancel(TForm& form) {
    const int top = form.GetClientHeight() - DialogMargin - DialogButtonHeight;
    const int left = form.GetClientWidth() - DialogMargin - DialogButtonWidth;
    AddClosingButton(form, {left - 8 - DialogButtonWidth, top}, L"OK", mrOk);
    AddClosingButton(form, {left, top}, L"Abbrechen", mrCancel);
}

void ShowErrorMessage(const String& message) {
    const std::array choices{
        TQV7SkinMessageChoice{.Caption = L"&Schließen", .Result = mrOk, .Default = true, .Cancel = true}};
    QV7SkinMessageDialog(L"QV7 Designer", message, msgiError, choices);
}

TScrollBox& AddScrollField(TWinControl& parent, const TRect& place) {
    auto* box = new TScrollBox(&parent);
    box->SetBoundsRect(place);
    box->SetAnchors({akLeft, akTop, akRight, akBottom});
    box->SetColor(GetQV7SkinColorCaption());
    box->SetParent(&parent);
    return *box;
}

}  // namespace designer
