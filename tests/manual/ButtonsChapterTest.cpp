// The code of docs/manual/buttons.md, line by line, and what the chapter says that it does.

#include "buttons/UnitQV7SkinButton.h"
#include "buttons/UnitQV7SkinMessageDialog.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/ImageList.h"
#include "tests/manual/ChapterTest.h"

#include "buttons/UnitQV7SkinButtonMsgDlg.h"

namespace {

using namespace qv7skin;

class TRoundButton : public qv7skin::TCustomQV7SkinButton {
public:
    using TCustomQV7SkinButton::TCustomQV7SkinButton;

protected:
    using TCustomQV7SkinButton::BuildImage;
    void BuildImage(velmora::TButtonExState State, TBitmap& Bitmap) override;
};

void TRoundButton::BuildImage(velmora::TButtonExState, TBitmap& Bitmap) {
    TCanvas& canvas = Bitmap.GetCanvas();
    const TRect whole(0, 0, Bitmap.GetWidth(), Bitmap.GetHeight());
    canvas.GetBrush().SetColor(clFuchsia);
    canvas.FillRect(whole);
    canvas.GetBrush().SetColor(clNavy);
    canvas.Ellipse(whole);
}

class TMainForm : public TForm {
public:
    using TForm::TForm;

    void MakeOk() {
        auto* ok = new TQV7SkinButton(this);  // the form owns it ...
        ok->SetParent(this);                  // ... and shows it
        ok->SetBounds(12, 12, 100, 25);
        ok->SetCaption(L"&OK");
        ok->SetDefault(true);
        ok->SetModalResult(mrOk);
        ok->OnClick = {this, &TMainForm::OkClick};
        Ok = ok;
    }
    static void ColorButton(TQV7SkinButton* button) {
        TGlowColors hot = button->GetAppearance().GetColors(glowHot);
        hot.Border = clBlack;
        button->Appearance().SetColors(glowHot, hot);
    }
    void MakeSave() {
        auto* save = new TQV7SkinButtonMsgDlg(this);
        save->SetParent(this);
        save->SetBounds(12, 80, 400, 56);
        save->SetCaption(L"&Speichern");
        save->GetDescription().Add(L"Legt die Datei unter ihrem Namen ab.");
        save->SetImageList(Images);  // normal, hovered, pressed, disabled
        save->SetModalResult(mrYes);
        SaveButton = save;
    }
    void AskAndGo() {
        const TQV7SkinMessageChoice choices[] = {
            {.Caption = L"&Speichern",
             .Description = L"Legt die Datei ab.",
             .Result = mrYes,
             .Default = true},
            {.Caption = L"&Verwerfen", .Description = L"Die Änderungen gehen verloren.", .Result = mrNo},
            {.Caption = L"&Abbrechen", .Result = mrCancel, .Cancel = true}};
        switch (QV7SkinMessageDialog(L"Editor", L"Änderungen speichern?", msgiQuestion, choices)) {
            case mrYes:
                Save();
                break;
            case mrNo:
                break;
            default:
                return;
        }
        HasGone = true;
    }

    void OkClick(TObject*) { ++Clicks; }
    void Save() { HasSaved = true; }

    TQV7SkinButton* Ok = nullptr;
    TQV7SkinButtonMsgDlg* SaveButton = nullptr;
    TImageList* Images = new TImageList(this);
    int Clicks = 0;
    bool HasSaved = false;
    bool HasGone = false;
};

using ButtonsChapterTest = test::ChapterTest<TMainForm>;

TEST_F(ButtonsChapterTest, EnterClicksTheDefaultButton) {
    Main().MakeOk();
    Input.KeyPress(VK_RETURN);
    EXPECT_EQ(Main().Clicks, 1);
    EXPECT_EQ(Main().GetModalResult(), mrOk);
}

TEST_F(ButtonsChapterTest, AButtonOfOnesOwnHasTheOutlineOfItsPicture) {
    auto* round = new TRoundButton(&Main());
    round->SetBounds(10, 10, 60, 60);
    round->SetParent(&Main());
    EXPECT_EQ(::WindowFromPoint({Main().GetClientOrigin().X + 40, Main().GetClientOrigin().Y + 40}),
              round->GetHandle());
    EXPECT_NE(::WindowFromPoint({Main().GetClientOrigin().X + 11, Main().GetClientOrigin().Y + 11}),
              round->GetHandle());
}

TEST_F(ButtonsChapterTest, ColorsOfAStateCanBeChanged) {
    Main().MakeOk();
    TMainForm::ColorButton(Main().Ok);
    EXPECT_EQ(Main().Ok->GetAppearance().GetColors(glowHot).Border, clBlack);
}

TEST_F(ButtonsChapterTest, TheCommandButtonHasItsTextsAndImages) {
    Main().MakeSave();
    EXPECT_EQ(Main().SaveButton->GetDescription().GetCount(), 1);
    EXPECT_EQ(Main().SaveButton->GetImageList(), Main().Images);
    test::PumpAll();
}

TEST_F(ButtonsChapterTest, TheMessageDialogAnswers) {
    const auto isOpen = [] { return ::FindWindowW(L"TfrmQV7SkinMessageDialog", L"Editor") != nullptr; };
    test::When(isOpen, [&] { Input.KeyPress(VK_RETURN); });
    Main().AskAndGo();
    EXPECT_TRUE(Main().HasSaved);
    Main().HasGone = false;
    test::When(isOpen, [&] { Input.KeyPress(VK_ESCAPE); });
    Main().AskAndGo();
    EXPECT_FALSE(Main().HasGone);
}

}  // namespace
