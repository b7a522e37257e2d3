#pragma once

#include "designer/window/DesignerWindow.h"
#include "tests/support/FormTest.h"
#include "tests/support/TempDir.h"

namespace designer {

/// Answers without windows what the test has prepared.
struct TPreparedAnswers {
    TDesignerDialogs::TAnswer Save = TDesignerDialogs::TAnswer::Cancel;
    std::optional<String> File;
    std::optional<String> Name;
    std::vector<String> Files;      ///< Those that were to choose from.
    std::vector<String> Ancestors;  ///< Those that were said to have changed.
    bool Yes = false;
    int Questions = 0;
    std::vector<String> Errors;
    std::vector<String> Reasons;  ///< Why a text is no form.
};

class TPreparedDialogs final : public TDesignerDialogs {
public:
    explicit TPreparedDialogs(TPreparedAnswers& answers) : FAnswers(answers) {}
    TAnswer AskToSave(const String&) override { return ++FAnswers.Questions, FAnswers.Save; }
    std::optional<String> AskFileToOpen() override { return FAnswers.File; }
    std::optional<String> AskFileToSave(const String&) override { return FAnswers.File; }
    bool AskToReload(const String&) override { return ++FAnswers.Questions, FAnswers.Yes; }
    bool AskToReloadAncestor(const String& title) override {
        FAnswers.Ancestors.push_back(title);
        return FAnswers.Yes;
    }
    bool AskToRecover(const String&) override { return ++FAnswers.Questions, FAnswers.Yes; }
    std::optional<String> AskAncestor(const std::vector<String>& files) override {
        FAnswers.Files = files;
        return FAnswers.File;
    }
    bool AskToDiscardText(const String& reason) override {
        FAnswers.Reasons.push_back(reason);
        return FAnswers.Yes;
    }
    void ShowError(const String& message) override { FAnswers.Errors.push_back(message); }
    std::optional<String> AskName(const String&) override { return FAnswers.Name; }

private:
    TPreparedAnswers& FAnswers;
};

/// A form with one button.
inline constexpr char SampleFile[] =
    "object MainForm: TMainForm\r\n  BorderStyle = bsNone\r\n  ClientHeight = 200\r\n  ClientWidth = 300\r\n"
    "  object OkButton: TButton\r\n    Left = 16\r\n    Top = 16\r\n    Width = 80\r\n    Height = 24\r\n"
    "    Caption = 'Fertig'\r\n    OnClick = OkButtonClick\r\n  end\r\nend\r\n";

/// A designer in its window, with dialogs that answer what the test has prepared.
class DesignerWindowTest : public test::FormTest {
protected:
    void SetUp() override;
    void TearDown() override;
    std::unique_ptr<TDesignerWindow> MakeWindow();
    [[nodiscard]] virtual std::unique_ptr<TDesignerDialogs> MakeDialogs() {
        return std::make_unique<TPreparedDialogs>(Answers);
    }
    TDesignDocument& Document() { return Window->Document(); }
    [[nodiscard]] HWND FormWindow() { return Document().Root().WindowHandle(); }
    /// Presses the button of the class on its palette page.
    void PressTool(const wchar_t* page, const wchar_t* className);
    /// Brings the focus to the line of the inspector.
    void ChooseLine(const wchar_t* path);
    /// The lines of the inspector for what is chosen.
    TPropertyList Lines(TPropertyList::TKind kind = TPropertyList::TKind::Properties);
    /// Turns the wheel until the line can be seen, presses on its value and types another one.
    void TypeValue(const String& path, const String& value,
                   TPropertyList::TKind kind = TPropertyList::TKind::Properties);
    [[nodiscard]] bool TextHas(const char* part) { return Document().Text().find(part) != std::string::npos; }

    test::TempDir Dir;
    TPreparedAnswers Answers;
    std::unique_ptr<TDesignerWindow> Window;
};

/// A designer whose dialogs are those that its user gets.
class RealDialogsTest : public DesignerWindowTest {
protected:
    void SetUp() override;
    void TearDown() override;
    [[nodiscard]] std::unique_ptr<TDesignerDialogs> MakeDialogs() override {
        return std::make_unique<TDesignerDialogs>();
    }
};

}  // namespace designer
