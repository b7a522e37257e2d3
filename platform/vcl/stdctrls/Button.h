#pragma once

#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/stdctrls/TextTypes.h"

namespace vcl {

/// Base of the controls that build on the system's "BUTTON" class.
class TButtonControl : public TWinControl {
public:
    explicit TButtonControl(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] bool GetWordWrap() const { return FWordWrap; }
    void SetWordWrap(bool value);

protected:
    void CreateParams(TCreateParams& params) override;

private:
    bool FWordWrap = false;
};

/// The push button of the system.
class TCustomButton : public TButtonControl {
public:
    explicit TCustomButton(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Sets the modal result of its form, then raises `OnClick`.
    void Click() override;
    [[nodiscard]] bool GetDefault() const { return FDefault; }
    /// Enter clicks the button while the focus is on a control that is no button.
    void SetDefault(bool value);
    [[nodiscard]] bool GetCancel() const { return FCancel; }
    /// Escape clicks the button.
    void SetCancel(bool value) { FCancel = value; }
    [[nodiscard]] TModalResult GetModalResult() const { return FModalResult; }
    /// What a click hands to the form; other than mrNone it closes a modal form.
    void SetModalResult(TModalResult value) { FModalResult = value; }

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    /// Shows or hides the frame of the button that Enter would click now.
    virtual void SetButtonStyle(bool isDefault);

private:
    void FocusChanged(TWinControl* focused);
    [[nodiscard]] bool WantsDialogKey(const TMessage& message) const;

    bool FDefault = false;
    bool FCancel = false;
    bool FActive = false;
    TModalResult FModalResult = mrNone;
};

/// The push button for forms.
class TButton : public TCustomButton {
public:
    using TCustomButton::TCustomButton;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
