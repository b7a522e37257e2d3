#include <array>

#include "buttons/UnitQV7SkinButton.h"
#include "buttons/UnitQV7SkinMessageDialog.h"
#include "gallery/Drawing.h"
#include "gallery/pages/Pages.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/graphics/TextLayout.h"
#include "platform/vcl/stdctrls/Label.h"
#include "skin/UnitGraphicsUtils.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

constexpr int CardTop = 50;
constexpr int CaptionHeight = 26;

const TQV7SkinMessageChoice SaveChoices[] = {
    {.Caption = L"&Speichern",
     .Description = L"Die Änderungen kommen in die Datei Angebot.txt.",
     .Result = mrYes,
     .Default = true},
    {.Caption = L"&Verwerfen",
     .Description = L"Die Datei bleibt, wie sie vor dem Öffnen war.\nDie Änderungen sind verloren.",
     .Result = mrNo},
    {.Caption = L"&Abbrechen", .Description = L"Zurück zum Text.", .Result = mrCancel, .Cancel = true}};
const TQV7SkinMessageChoice RetryChoices[] = {{.Caption = L"Noch einmal &versuchen",
                                               .Description = L"Laufwerk einlegen und fortfahren.",
                                               .Result = mrRetry},
                                              {.Caption = L"&Aufgeben", .Result = mrCancel, .Cancel = true}};
const TQV7SkinMessageChoice InfoChoices[] = {{.Caption = L"&Weiter", .Result = mrOk}};

/// A button that stays in one state, whatever the mouse does.
class TFrozenButton : public TQV7SkinButtonMsgDlg {
public:
    using TQV7SkinButtonMsgDlg::TQV7SkinButtonMsgDlg;
    void Freeze(TButtonExState state) {
        SetTabStop(false);
        WORD space = VK_SPACE;
        if (state == bexDisabled) SetEnabled(false);
        if (state == bexPressed) KeyDown(space, {});
        if (state == bexHovered) MouseEnter();
        if (state == bexDown) SetDown(true);
        FFrozen = true;
    }

protected:
    void Dispatch(TMessage& message) override {
        const bool mouse = (message.Msg >= WM_MOUSEFIRST && message.Msg <= WM_MOUSELAST) ||
                           message.Msg == CM_MOUSEENTER || message.Msg == CM_MOUSELEAVE;
        if (!FFrozen || !mouse) TQV7SkinButtonMsgDlg::Dispatch(message);
    }

private:
    bool FFrozen = false;
};

/// The message-dialog button in all its states, and the dialogs that are made of it.
class TMessageDialogPage : public TGalleryPage {
public:
    explicit TMessageDialogPage(TComponent* AOwner) : TGalleryPage(AOwner) {
        SetColor(clWhite);
        FImages = new TImageList(this);
        MakeImages();
        AddCard();
        AddOpeners();
        AddStates();
        AddAlignments();
    }

protected:
    void Paint() override {
        TCanvas& canvas = GetCanvas();
        DrawTitle(canvas, Margin, 20, L"So fragt ein Programm");
        DrawTitle(canvas, 500, 20, L"Zum Anfassen");
        DrawTitle(canvas, Margin, FStatesTop - 26, L"Alle Zustände");
        DrawTitle(canvas, Margin, FAlignTop - 26, L"Ausrichtung");
        DrawCardFrame();
        for (std::size_t i = 0; i < StateNames.size(); ++i)
            DrawNote(canvas,
                     TRect::OfSize(CellLeft(static_cast<int>(i) % 3) + 2,
                                   FStatesTop + static_cast<int>(i) / 3 * 80 + 59, 200, 16),
                     StateNames[i]);
    }

private:
    static constexpr std::array StateNames{L"Normal", L"Unter der Maus", L"Gedrückt", L"Ein", L"Gesperrt"};

    static int CellLeft(int column) { return Margin + column * 240; }

    /// The window around the dialog that stands on the page.
    void DrawCardFrame() {
        const TRect inside = FCard->GetBoundsRect();
        TRect frame{inside.Left - 1, inside.Top - CaptionHeight, inside.Right + 1, inside.Bottom + 1};
        Fill(GetCanvas(), frame, GetQV7SkinColorColumnHeaderBG());
        UseFont(GetCanvas(), 9, true, clWhite);
        GetCanvas().GetBrush().SetStyle(bsClear);
        TRect caption{frame.Left + 9, frame.Top, frame.Right - 9, inside.Top};
        GetCanvas().TextRect(caption, L"Texteditor", DT_SINGLELINE | DT_VCENTER);
    }

    /// Images of 32 x 32 pixels for normal, hovered, pressed and disabled.
    void MakeImages() {
        FImages->SetSize(MessageIconSize, MessageIconSize);
        for (const TColor ground : {clWhite, TColor{0x00F0E7EA}, TColor{0x00F0E7EA}}) {
            TBitmap image;
            DrawMessageIcon(image, msgiInformation, ground);
            FImages->AddMasked(&image, ground);
        }
        TBitmap image;
        DrawMessageIcon(image, msgiInformation, clWhite);
        GrayBitmap(&image, 50, clWhite);
        FImages->AddMasked(&image, clWhite);
    }

    void AddCard() {
        FCard = new TfrmQV7SkinMessageDialog(this);
        FCard->SetBorderStyle(bsNone);
        FCard->SetMessageText(L"Änderungen speichern?");
        FCard->SetDetail(L"Der Text „Angebot.txt“ wurde seit dem letzten Speichern geändert.");
        FCard->SetMessageIcon(msgiQuestion);
        for (const TQV7SkinMessageChoice& choice : SaveChoices)
            FCard->AddChoice(choice).SetModalResult(mrNone);
        // As it looks with the focus.
        FCard->GetChoice(0).SetDown(true);
        FCard->Arrange();
        FCard->SetParent(this);
        FCard->SetBounds(Margin + 1, CardTop + CaptionHeight - 4, FCard->GetWidth(), FCard->GetHeight());
        FCard->SetVisible(true);
        FStatesTop = FCard->GetTop() + FCard->GetHeight() + 50;
        FAlignTop = FStatesTop + 200;
    }

    void AddOpeners() {
        const struct {
            const wchar_t* Caption;
            void (TMessageDialogPage::*Open)(TObject*);
        } openers[] = {{L"Frage", &TMessageDialogPage::AskToSave},
                       {L"Warnung", &TMessageDialogPage::Warn},
                       {L"Fehler", &TMessageDialogPage::Fail},
                       {L"Hinweis", &TMessageDialogPage::Inform}};
        int top = CardTop;
        for (const auto& opener : openers) {
            auto* button = new TQV7SkinButton(this);
            button->SetBounds(500, top, 140, 27);
            button->SetCaption(opener.Caption);
            button->OnClick = {this, opener.Open};
            button->SetParent(this);
            top += 37;
        }
        FAnswer = new TLabel(this);
        FAnswer->SetBounds(500, top + 6, 230, 20);
        FAnswer->SetCaption(L"Noch keine Antwort.");
        FAnswer->SetParent(this);
    }

    void AddStates() {
        constexpr std::array states{bexNormal, bexHovered, bexPressed, bexDown, bexDisabled};
        for (std::size_t i = 0; i < states.size(); ++i)
            AddButton(static_cast<int>(i) % 3, FStatesTop + static_cast<int>(i) / 3 * 80, states[i]);
    }

    void AddAlignments() {
        int column = 0;
        for (const TAlignment alignment : {taLeftJustify, taCenter, taRightJustify})
            AddButton(column++, FAlignTop, bexNormal).SetAlignment(alignment);
    }

    TFrozenButton& AddButton(int column, int top, TButtonExState state) {
        auto* button = new TFrozenButton(this);
        button->SetBounds(CellLeft(column), top, 228, 56);
        button->SetCaption(L"Sichern");
        button->GetDescription().Add(L"Legt eine Kopie der Datei");
        button->GetDescription().Add(L"neben dem Original ab.");
        button->SetSpacing(10);
        button->SetImageList(FImages);
        button->SetParent(this);
        button->Freeze(state);
        return *button;
    }

    void Show(TQV7SkinMessageIcon icon, const wchar_t* text, std::span<const TQV7SkinMessageChoice> choices,
              const wchar_t* detail) {
        const TModalResult result = QV7SkinMessageDialog(L"Texteditor", text, icon, choices, detail);
        for (const TQV7SkinMessageChoice& choice : choices)
            if (choice.Result == result)
                FAnswer->SetCaption(L"Antwort: " + StripHotkey(choice.Caption) + L" (" + IntToStr(result) +
                                    L")");
    }
    void AskToSave(TObject*) {
        Show(msgiQuestion, L"Änderungen speichern?", SaveChoices,
             L"Der Text „Angebot.txt“ wurde seit dem letzten Speichern geändert.");
    }
    void Warn(TObject*) {
        Show(msgiWarning, L"Der Speicherplatz wird knapp.", RetryChoices,
             L"Auf dem Laufwerk D: sind noch 12 MB frei.");
    }
    void Fail(TObject*) {
        Show(msgiError, L"Die Datei kann nicht gelesen werden.", RetryChoices,
             L"Das Laufwerk D: ist nicht bereit.");
    }
    void Inform(TObject*) { Show(msgiInformation, L"Alle Dateien sind gesichert.", InfoChoices, L""); }

    TImageList* FImages;
    TfrmQV7SkinMessageDialog* FCard = nullptr;
    TLabel* FAnswer = nullptr;
    int FStatesTop = 0;
    int FAlignTop = 0;
};

}  // namespace

TGalleryPage* CreateMessageDialogPage(TComponent* owner) {
    return new TMessageDialogPage(owner);
}

}  // namespace gallery
