#pragma once

#include <memory>
#include <span>
#include <vector>

#include "buttons/MessageIcons.h"
#include "buttons/UnitQV7SkinButtonMsgDlg.h"
#include "platform/vcl/forms/Form.h"

namespace vcl {
class TImage;
class TLabel;
}  // namespace vcl

/// A ready-made dialog that asks the user to choose, made of the command buttons of the skin.
namespace qv7skin {

/// One of the answers that a message dialog offers.
struct TQV7SkinMessageChoice {
    String Caption{};              ///< The letter after '&' chooses it.
    String Description{};          ///< What it means; line breaks are kept, and long lines broken.
    TModalResult Result = mrNone;  ///< What the dialog returns; mrNone leaves it open.
    bool Default = false;          ///< Has the focus at first, so that Enter chooses it.
    bool Cancel = false;           ///< Chosen by Esc and by closing the window.
    bool Enabled = true;
};

/// The dialog as a form, for hosts that want to change it before they show it: fill it in, call `ShowModal`.
///
/// It takes its size from what it shows. Without a default choice the first one has the focus. A single
/// choice is chosen by Esc and closing, too; among several ones without a `Cancel` the user has to decide:
/// the window can't be closed.
class TfrmQV7SkinMessageDialog : public TForm {
public:
    explicit TfrmQV7SkinMessageDialog(TComponent* AOwner);
    ~TfrmQV7SkinMessageDialog() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The question or message, in large letters.
    [[nodiscard]] String GetMessageText() const;
    void SetMessageText(const String& Value);
    /// What else there is to say, in small letters below; empty at first.
    [[nodiscard]] String GetDetail() const;
    void SetDetail(const String& Value);
    [[nodiscard]] TQV7SkinMessageIcon GetMessageIcon() const { return FMessageIcon; }
    void SetMessageIcon(TQV7SkinMessageIcon Value);
    /// Appends a button for the choice, which the form owns; change it as you like.
    TQV7SkinButtonMsgDlg& AddChoice(const TQV7SkinMessageChoice& Choice);
    [[nodiscard]] int GetChoiceCount() const { return static_cast<int>(FChoices.size()); }
    /// The button of the choice, counted from 0; raises std::out_of_range.
    [[nodiscard]] TQV7SkinButtonMsgDlg& GetChoice(int Index) const { return *FChoices.at(Index); }

    /// Gives everything its place and the form its size. Called before the form is shown.
    void Arrange();
    /// Shows the dialog until the user chose, and returns the choice's result.
    int ShowModal() override;

protected:
    void Dispatch(TMessage& message) override;
    void Notification(TComponent* component, TOperation operation) override;

private:
    [[nodiscard]] int NeededWidth() const;
    int ArrangeMessage(int width);
    int ArrangeChoices(int top, int width);
    [[nodiscard]] TQV7SkinButtonMsgDlg* CancelChoice() const;
    void PrepareChoices();

    TImage* FImage;
    TLabel* FText;
    TLabel* FDetail;
    TImageList* FArrows;
    std::vector<TQV7SkinButtonMsgDlg*> FChoices;
    TQV7SkinMessageIcon FMessageIcon = msgiNone;
};

/// Shows a message dialog above the active form and returns the result of the user's choice.
///
///     const TQV7SkinMessageChoice choices[] = {
///         {.Caption = L"&Speichern", .Description = L"Legt die Datei ab.", .Result = mrYes, .Default =
///         true},
///         {.Caption = L"&Verwerfen", .Result = mrNo},
///         {.Caption = L"&Abbrechen", .Result = mrCancel, .Cancel = true}};
///     switch (QV7SkinMessageDialog(L"Editor", L"Änderungen speichern?", msgiQuestion, choices)) ...
TModalResult QV7SkinMessageDialog(const String& Caption, const String& Text, TQV7SkinMessageIcon Icon,
                                  std::span<const TQV7SkinMessageChoice> Choices, const String& Detail = {});

}  // namespace qv7skin
