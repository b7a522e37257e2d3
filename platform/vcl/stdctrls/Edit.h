#pragma once

#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/stdctrls/TextTypes.h"

namespace vcl {

/// Base of the editors that build on the system's "EDIT" class: a line of text.
class TCustomEdit : public TWinControl {
public:
    explicit TCustomEdit(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after every change of the text, by the user or by code.
    TNotifyEvent OnChange;

    [[nodiscard]] bool GetAutoSelect() const { return FAutoSelect; }
    /// Whether all is selected when the focus comes by key.
    void SetAutoSelect(bool value) { FAutoSelect = value; }
    [[nodiscard]] TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle value);
    [[nodiscard]] TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment value);
    [[nodiscard]] TEditCharCase GetCharCase() const { return FCharCase; }
    void SetCharCase(TEditCharCase value);
    [[nodiscard]] bool GetHideSelection() const { return FHideSelection; }
    void SetHideSelection(bool value);
    /// Greatest number of characters that the user may type; 0: no limit.
    [[nodiscard]] int GetMaxLength() const { return FMaxLength; }
    void SetMaxLength(int value);
    [[nodiscard]] wchar_t GetPasswordChar() const { return FPasswordChar; }
    /// Shown for every character; 0: the characters themselves.
    void SetPasswordChar(wchar_t value);
    [[nodiscard]] bool GetReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool value);
    /// Whether only digits can be typed.
    [[nodiscard]] bool GetNumbersOnly() const { return FNumbersOnly; }
    void SetNumbersOnly(bool value);
    [[nodiscard]] const String& GetTextHint() const { return FTextHint; }
    /// Shown grey while the editor is empty and has no focus.
    void SetTextHint(const String& value);

    /// True after the user changed the text; until reset.
    [[nodiscard]] bool GetModified() const;
    void SetModified(bool value);
    [[nodiscard]] int GetSelStart() const;
    void SetSelStart(int value);
    [[nodiscard]] int GetSelLength() const;
    void SetSelLength(int value);
    [[nodiscard]] String GetSelText() const;
    /// Replaces the selection.
    void SetSelText(const String& value);
    void Clear() { SetText(String()); }
    void ClearSelection();
    void SelectAll();
    void CopyToClipboard();
    void CutToClipboard();
    void PasteFromClipboard();
    void Undo();
    void ClearUndo();
    [[nodiscard]] bool GetCanUndo() const;

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    [[nodiscard]] TRect GetFrameInsets() const override;
    [[nodiscard]] virtual bool IsMultiLine() const { return false; }
    /// Raises `OnChange`.
    virtual void Change();
    void AdjustSize() override { UpdateHeight(); }
    /// Gives a single line the height of its font when `AutoSize` is on.
    void UpdateHeight();

private:
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    [[nodiscard]] TPoint Selection() const;

    TBorderStyle FBorderStyle = bsSingle;
    TAlignment FAlignment = taLeftJustify;
    TEditCharCase FCharCase = ecNormal;
    String FTextHint;
    int FMaxLength = 0;
    wchar_t FPasswordChar = 0;
    bool FAutoSelect = true;
    bool FHideSelection = true;
    bool FReadOnly = false;
    bool FNumbersOnly = false;
    bool FCreating = false;
    bool FModified = false;
};

/// The line editor for forms.
class TEdit : public TCustomEdit {
public:
    using TCustomEdit::TCustomEdit;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
