#include "buttons/UnitQV7SkinMessageDialog.h"

#include <array>

#include "buttons/MessageIcons.h"
#include "platform/vcl/forms/Screen.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/stdctrls/Image.h"
#include "platform/vcl/stdctrls/Label.h"
#include "tests/support/FormTest.h"
#include "tests/support/PixelProbe.h"

namespace test {
namespace {

using namespace qv7skin;

/// Shows dialogs above the form of the test and plays their user.
class MessageDialogTest : public FormTest {
protected:
    using Choices = std::vector<TQV7SkinMessageChoice>;

    void SetUp() override {
        FormTest::SetUp();
        static_cast<void>(Form());
        PumpAll();
    }
    /// Asks, lets `act` work the dialog, and returns what came out.
    TModalResult Ask(const Choices& choices, const std::function<void(TfrmQV7SkinMessageDialog&)>& act,
                     TQV7SkinMessageIcon icon = msgiQuestion, const wchar_t* detail = L"") {
        When([] { return ShownDialog() != nullptr; }, [&] { act(*ShownDialog()); });
        return QV7SkinMessageDialog(L"Editor", L"Änderungen speichern?", icon, choices, detail);
    }
    static TfrmQV7SkinMessageDialog* ShownDialog() {
        auto* dialog = dynamic_cast<TfrmQV7SkinMessageDialog*>(Screen().GetActiveForm());
        return dialog && dialog->GetShowing() ? dialog : nullptr;
    }
    void ClickOn(const TControl& choice) {
        const TPoint p = choice.ClientToScreen({choice.GetWidth() / 2, choice.GetHeight() / 2});
        Input.MoveTo({p.X, p.Y});
        Input.Click();
    }
    /// Yes, No, Cancel.
    static Choices Three() {
        return {{.Caption = L"&Speichern",
                 .Description = L"Legt die Datei unter ihrem Namen ab.",
                 .Result = mrYes,
                 .Default = true},
                {.Caption = L"&Verwerfen", .Description = L"Die Änderungen gehen verloren.", .Result = mrNo},
                {.Caption = L"&Abbrechen", .Result = mrCancel, .Cancel = true}};
    }
};

TEST_F(MessageDialogTest, ReturnsTheResultOfTheChoiceThatIsClicked) {
    const TModalResult results[] = {mrYes, mrNo, mrCancel};
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(Ask(Three(), [&](auto& dialog) { ClickOn(dialog.GetChoice(i)); }), results[i]);
}

TEST_F(MessageDialogTest, ReturnChoosesTheDefaultAndAccessKeysTheirOwn) {
    EXPECT_EQ(Ask(Three(), [&](auto&) { Input.KeyPress(VK_RETURN); }), mrYes);
    EXPECT_EQ(Ask(Three(), [&](auto&) { Input.Chord({VK_MENU}, 'V'); }), mrNo);
}

TEST_F(MessageDialogTest, ArrowsMoveToTheNextChoice) {
    EXPECT_EQ(Ask(Three(),
                  [&](auto&) {
                      Input.KeyPress(VK_DOWN);
                      Input.KeyPress(VK_RETURN);
                  }),
              mrNo);
}

TEST_F(MessageDialogTest, EscapeAndClosingChooseTheCancelChoice) {
    Choices choices = Three();
    choices[2].Cancel = false;
    choices[1].Cancel = true;
    EXPECT_EQ(Ask(choices, [&](auto&) { Input.KeyPress(VK_ESCAPE); }), mrNo);
    EXPECT_EQ(Ask(choices, [&](auto& dialog) { ::PostMessageW(dialog.GetHandle(), WM_CLOSE, 0, 0); }), mrNo);
}

TEST_F(MessageDialogTest, WithoutACancelChoiceTheUserHasToDecide) {
    Choices choices = Three();
    choices[2].Cancel = false;
    bool stayed = false;
    EXPECT_EQ(Ask(choices,
                  [&](auto& dialog) {
                      Input.KeyPress(VK_ESCAPE);
                      ::SendMessageW(dialog.GetHandle(), WM_CLOSE, 0, 0);
                      stayed = dialog.GetShowing() && dialog.GetModalResult() == mrNone;
                      EXPECT_EQ(::GetWindowLongW(dialog.GetHandle(), GWL_STYLE) & WS_SYSMENU, 0);
                      ClickOn(dialog.GetChoice(0));
                  }),
              mrYes);
    EXPECT_TRUE(stayed);
}

TEST_F(MessageDialogTest, TheOnlyChoiceIsChosenByEscapeToo) {
    EXPECT_EQ(Ask({{.Caption = L"Weiter", .Result = mrOk}}, [&](auto&) { Input.KeyPress(VK_ESCAPE); }), mrOk);
}

TEST_F(MessageDialogTest, TheFirstEnabledChoiceHasTheFocusWithoutADefault) {
    Choices choices = Three();
    choices[0].Default = false;
    choices[0].Enabled = false;
    EXPECT_EQ(Ask(choices,
                  [&](auto& dialog) {
                      EXPECT_TRUE(dialog.GetChoice(1).Focused());
                      Input.KeyPress(VK_RETURN);
                  }),
              mrNo);
}

TEST_F(MessageDialogTest, AChoiceWithoutResultLeavesTheDialogOpen) {
    Choices choices = Three();
    choices.push_back({.Caption = L"&Details"});
    int asked = 0;
    EXPECT_EQ(Ask(choices,
                  [&](auto& dialog) {
                      dialog.GetChoice(3).OnClick = [&](TObject*) { ++asked; };
                      ClickOn(dialog.GetChoice(3));
                      EXPECT_TRUE(dialog.GetShowing());
                      ClickOn(dialog.GetChoice(1));
                  }),
              mrNo);
    EXPECT_EQ(asked, 1);
}

TEST_F(MessageDialogTest, EverythingStandsInsideAndNothingOnEachOther) {
    Choices choices = Three();
    choices[1].Description =
        L"Ein sehr langer Satz, der in der Breite des Dialogs keinen Platz hat und deshalb an den Wörtern in "
        L"mehrere "
        L"Zeilen gebrochen werden muss, damit nichts verloren geht.\nUnd noch eine Zeile.";
    for (const TQV7SkinMessageIcon icon : {msgiNone, msgiWarning}) {
        Ask(
            choices,
            [&](auto& dialog) {
                const TRect client = dialog.GetClientRect();
                std::vector<TRect> places;
                for (int i = 0; i < dialog.GetControlCount(); ++i) {
                    const TControl& control = *dialog.GetControl(i);
                    if (!control.GetVisible()) continue;
                    const TRect r = control.GetBoundsRect();
                    EXPECT_EQ(r.Intersect(client), r);
                    for (const TRect& other : places)
                        EXPECT_TRUE(r.Intersect(other).IsEmpty());
                    places.push_back(r);
                }
                auto& wrapped = dialog.GetChoice(1);
                EXPECT_GE(wrapped.GetDescription().GetCount(), 3);
                EXPECT_GE(wrapped.GetHeight(), wrapped.GetTextHeight() + 6);
                TBitmap scratch(1, 1);
                scratch.GetCanvas().SetFont(wrapped.GetFontDescription());
                for (int i = 0; i < wrapped.GetDescription().GetCount(); ++i)
                    EXPECT_LE(scratch.GetCanvas().TextWidth(wrapped.GetDescription().Get(i)),
                              wrapped.GetTextArea().Width());
                Input.KeyPress(VK_ESCAPE);
            },
            icon, L"Die Datei „Brief.txt“ wurde zuletzt vor drei Minuten gespeichert.");
    }
}

TEST_F(MessageDialogTest, LongCaptionsWidenTheDialog) {
    Choices choices = Three();
    int narrow = 0, wide = 0;
    Ask(choices, [&](auto& dialog) {
        narrow = dialog.GetClientWidth();
        Input.KeyPress(VK_ESCAPE);
    });
    choices[0].Caption = L"Die Änderungen an allen geöffneten Dateien jetzt sichern";
    Ask(choices, [&](auto& dialog) {
        wide = dialog.GetClientWidth();
        Input.KeyPress(VK_ESCAPE);
    });
    EXPECT_GT(wide, narrow);
}

TEST_F(MessageDialogTest, ItIsAsWideAsItsCaptionsWithoutTheirMarksAndNoWiderThanTheMost) {
    const auto widthOf = [&](const String& caption) {
        Choices choices = Three();
        choices[0].Caption = caption;
        int width = 0;
        Ask(choices, [&](auto& dialog) {
            width = dialog.GetClientWidth();
            Input.KeyPress(VK_ESCAPE);
        });
        return width;
    };
    const String caption = L"Die Änderungen an allen geöffneten Dateien jetzt sichern";
    EXPECT_EQ(widthOf(L"&" + caption), widthOf(caption));
    EXPECT_EQ(widthOf(caption + L" " + caption + L" " + caption), 640);
}

TEST_F(MessageDialogTest, ADisabledChoiceIsNeitherDefaultNorCancel) {
    Choices choices = Three();
    choices[0].Enabled = false;
    choices[2].Enabled = false;
    bool stayed = false;
    EXPECT_EQ(Ask(choices,
                  [&](auto& dialog) {
                      EXPECT_TRUE(dialog.GetChoice(1).Focused());
                      Input.KeyPress(VK_ESCAPE);
                      ::SendMessageW(dialog.GetHandle(), WM_CLOSE, 0, 0);
                      stayed = dialog.GetShowing() && dialog.GetModalResult() == mrNone;
                      Input.KeyPress(VK_RETURN);
                  }),
              mrNo);
    EXPECT_TRUE(stayed);
}

TEST_F(MessageDialogTest, TheChoiceWithTheFocusIsLit) {
    Ask(Three(), [&](auto& dialog) {
        EXPECT_EQ(dialog.GetChoice(0).GetState(), bexHovered);
        EXPECT_EQ(dialog.GetChoice(1).GetState(), bexNormal);
        Input.KeyPress(VK_DOWN);
        EXPECT_EQ(dialog.GetChoice(0).GetState(), bexNormal);
        EXPECT_EQ(dialog.GetChoice(1).GetState(), bexHovered);
        Input.KeyPress(VK_ESCAPE);
    });
}

TEST_F(MessageDialogTest, ASingleLineStandsBesideTheMiddleOfTheIcon) {
    Ask(Three(), [&](auto& dialog) {
        TRect icon, text;
        for (int i = 0; i < dialog.GetControlCount(); ++i) {
            const TControl* control = dialog.GetControl(i);
            if (!control->GetVisible()) continue;
            if (dynamic_cast<const TImage*>(control)) icon = control->GetBoundsRect();
            if (dynamic_cast<const TLabel*>(control)) text = control->GetBoundsRect();
        }
        EXPECT_EQ(icon.Height(), MessageIconSize);
        EXPECT_LT(text.Height(), icon.Height());
        EXPECT_NEAR(text.Top + text.Bottom, icon.Top + icon.Bottom, 1);
        EXPECT_GT(dialog.GetChoice(0).GetTop(), icon.Bottom);
        Input.KeyPress(VK_ESCAPE);
    });
}

TEST_F(MessageDialogTest, ItStandsAboveTheMiddleOfTheActiveForm) {
    TForm owner(nullptr);
    owner.SetBounds(300, 250, 300, 200);
    owner.Show();
    PumpAll();
    Ask(Three(), [&](auto& dialog) {
        EXPECT_NEAR(dialog.GetLeft() + dialog.GetWidth() / 2, 450, 1);
        EXPECT_NEAR(dialog.GetTop() + dialog.GetHeight() / 2, 350, 1);
        Input.KeyPress(VK_ESCAPE);
    });
}

TEST_F(MessageDialogTest, AChoiceThatIsFreedIsNone) {
    TfrmQV7SkinMessageDialog dialog(nullptr);
    for (const TQV7SkinMessageChoice& choice : Three())
        dialog.AddChoice(choice);
    delete &dialog.GetChoice(0);
    EXPECT_EQ(dialog.GetChoiceCount(), 2);
    When([&] { return dialog.GetShowing(); }, [&] { Input.KeyPress(VK_RETURN); });
    EXPECT_EQ(dialog.ShowModal(), mrNo);
}

TEST_F(MessageDialogTest, ADialogWhoseFormIsFreedIsCancelled) {
    auto owner = std::make_unique<TForm>(nullptr);
    owner->SetBounds(120, 120, 300, 200);
    owner->Show();
    PumpAll();
    ASSERT_EQ(Screen().GetActiveForm(), owner.get());
    EXPECT_EQ(Ask(Three(), [&](auto&) { owner.reset(); }), mrCancel);
}

TEST_F(MessageDialogTest, TheSameFormCanBeShownAgain) {
    TfrmQV7SkinMessageDialog dialog(nullptr);
    dialog.SetMessageText(L"Noch einmal?");
    for (const TQV7SkinMessageChoice& choice : Three())
        dialog.AddChoice(choice);
    const auto showing = [&] { return dialog.GetShowing(); };
    for (const int i : {0, 1}) {
        When(showing, [&] { ClickOn(dialog.GetChoice(i)); });
        EXPECT_EQ(dialog.ShowModal(), i == 0 ? mrYes : mrNo);
    }
    EXPECT_EQ(dialog.GetChoice(0).GetDescription().GetCount(), 1);
    EXPECT_EQ(dialog.GetChoiceCount(), 3);
}

TEST(MessageIcons, EachIconHasItsColorAndItsGround) {
    const std::pair<TQV7SkinMessageIcon, COLORREF> inks[] = {{msgiInformation, RGB(255, 255, 255)},
                                                             {msgiQuestion, RGB(255, 255, 255)},
                                                             {msgiWarning, RGB(0x20, 0x20, 0x20)},
                                                             {msgiError, RGB(255, 255, 255)}};
    for (const auto& [icon, ink] : inks) {
        TBitmap bitmap;
        DrawMessageIcon(bitmap, icon, clYellow);
        const Pixels pixels = ReadBitmap(bitmap.GetHandle());
        EXPECT_EQ(pixels.Width(), MessageIconSize);
        EXPECT_EQ(pixels.At(0, 0), RGB(255, 255, 0));
        EXPECT_GT(pixels.Count(ink), 5);
        EXPECT_GT(pixels.Count(RGB(255, 255, 0)), 100);
    }
    TBitmap none;
    DrawMessageIcon(none, msgiNone, clYellow);
    EXPECT_EQ(ReadBitmap(none.GetHandle()).Count(RGB(255, 255, 0)), MessageIconSize * MessageIconSize);
}

TEST(MessageIcons, ArrowsHaveFourStatesInMagenta) {
    TImageList images(nullptr);
    MakeChoiceArrows(images, clWhite, 0x00F0E7EA);
    ASSERT_EQ(images.GetCount(), 4);
    EXPECT_EQ(images.GetHeight(), ChoiceArrowHeight);
    std::vector<Pixels> all;
    for (int i = 0; i < 4; ++i) {
        TBitmap bitmap;
        ASSERT_TRUE(images.GetBitmap(i, bitmap));
        all.push_back(ReadBitmap(bitmap.GetHandle()));
        EXPECT_GT(all.back().Count(RGB(255, 0, 255)), 200);
        for (int j = 0; j < i; ++j)
            EXPECT_NE(all[j], all[i]);
    }
}

}  // namespace
}  // namespace test
