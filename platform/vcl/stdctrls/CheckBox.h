#pragma once

#include "platform/vcl/stdctrls/Button.h"

namespace vcl {

/// The check box of the system, with two or three states.
class TCustomCheckBox : public TButtonControl {
public:
    explicit TCustomCheckBox(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] bool GetChecked() const { return FState == cbChecked; }
    void SetChecked(bool value) { SetState(value ? cbChecked : cbUnchecked); }
    [[nodiscard]] TCheckBoxState GetState() const { return FState; }
    /// A change by code raises `OnClick` too, except while a form file is read.
    void SetState(TCheckBoxState value);
    [[nodiscard]] bool GetAllowGrayed() const { return FAllowGrayed; }
    /// Whether the user gets to the third state.
    void SetAllowGrayed(bool value) { FAllowGrayed = value; }
    /// The side of the box on which the text stands: taRightJustify (the usual one) or taLeftJustify.
    [[nodiscard]] TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment value);

    /// False while the linked action decides about the state.
    [[nodiscard]] bool IsStateStored() const;

protected:
    void Dispatch(TMessage& message) override;
    void ActionChange(TObject* sender, bool checkDefaults) override;
    [[nodiscard]] std::unique_ptr<TBasicActionLink> CreateActionLink() override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    /// What a click of the user does to the state.
    virtual void Toggle();

private:
    class TActionLink;

    void ShowState(TCheckBoxState value);

    TCheckBoxState FState = cbUnchecked;
    TAlignment FAlignment = taRightJustify;
    bool FAllowGrayed = false;
};

/// The check box for forms.
class TCheckBox : public TCustomCheckBox {
public:
    using TCustomCheckBox::TCustomCheckBox;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
