#pragma once

#include "platform/tms/CurvyControl.h"
#include "platform/vcl/stdctrls/TextTypes.h"

namespace vcl {
class TEdit;
}

namespace tms {

/// A line editor in a frame with round corners. Inside stands an editor of the system, which has the focus,
/// the keys, the clipboard and the context menu; the events come with the curvy editor as sender.
class TCurvyEdit : public TCurvyControl {
public:
    explicit TCurvyEdit(TComponent* AOwner);
    ~TCurvyEdit() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after every change of the text, by the user or by code.
    TNotifyEvent OnChange;

    /// Shown for every character; 0: the characters themselves.
    [[nodiscard]] wchar_t GetPasswordChar() const;
    void SetPasswordChar(wchar_t value);
    [[nodiscard]] bool GetReadOnly() const;
    void SetReadOnly(bool value);
    /// Greatest number of characters that the user may type; 0: no limit.
    [[nodiscard]] int GetMaxLength() const;
    void SetMaxLength(int value);
    [[nodiscard]] TAlignment GetAlignment() const;
    void SetAlignment(TAlignment value);
    [[nodiscard]] TEditCharCase GetCharCase() const;
    void SetCharCase(TEditCharCase value);
    [[nodiscard]] String GetTextHint() const;
    /// Shown grey while the editor is empty and has no focus.
    void SetTextHint(const String& value);
    void SelectAll();
    void Clear() { SetText({}); }
    /// The editor of the system inside, for what is not offered here; owned by the control.
    [[nodiscard]] TEdit& GetEdit() const { return *FEdit; }

    void SetFocus() override;
    void SetEnabled(bool value) override;
    [[nodiscard]] bool Focused() const override;

protected:
    void Dispatch(TMessage& message) override;
    void Resize() override;
    void Loaded() override;
    void LookChanged() override;
    [[nodiscard]] String GetTextBuf() const override;
    void SetTextBuf(const String& value) override;
    virtual void Change();

private:
    void PlaceEdit();

    TEdit* FEdit;
};

}  // namespace tms
