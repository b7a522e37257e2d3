#pragma once

#include "inputs/Namespace.h"
#include "platform/flatstyle/FlatSpinEditInteger.h"
#include "platform/tms/CurvyPanel.h"

namespace qv7skin {

/// The skin's editor for whole numbers: a white frame with round corners around a flat spin edit, which is
/// made when the form file has been read (`Loaded`), never at design time; a control made in code gets it by
/// `CreateEdit`. Its events come with the frame as sender.
class TCustomQV7SkinSpinEdit : public TCurvyPanel {
public:
    explicit TCustomQV7SkinSpinEdit(TComponent* AOwner);
    ~TCustomQV7SkinSpinEdit() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after every change of the number.
    TNotifyEvent OnChange;

    /// Without an inner control the number that the caption is, or 0.
    [[nodiscard]] int GetValue() const;
    void SetValue(int Value);
    /// The range (equal bounds: none) and the size of a step, kept here and handed to the inner control.
    [[nodiscard]] int GetMinValue() const { return FMinValue; }
    void SetMinValue(int Value);
    [[nodiscard]] int GetMaxValue() const { return FMaxValue; }
    void SetMaxValue(int Value);
    [[nodiscard]] int GetIncrement() const { return FIncrement; }
    void SetIncrement(int Value);
    /// The control of the frame; null before it is made.
    [[nodiscard]] TFlatSpinEditInteger* GetEdit() const { return FEdit; }

    void SelectAll();
    void Clear();
    void SetFocus() override;
    void SetEnabled(bool Value) override;

    /// Makes the inner control, unless there is one or the frame is being designed.
    virtual void CreateEdit();
    virtual void DoChange(TObject* Sender);
    virtual void DoClick(TObject* Sender);
    virtual void DoKeyPress(TObject* Sender, wchar_t& Key);

protected:
    void Loaded() override;
    void ConstrainedResize(int& minWidth, int& minHeight, int& maxWidth, int& maxHeight) override;

private:
    TFlatSpinEditInteger* FEdit = nullptr;
    int FMinValue = 0;
    int FMaxValue = 0;
    int FIncrement = 1;
};

/// The skin's spin edit for forms.
class TQV7SkinSpinEdit : public TCustomQV7SkinSpinEdit {
public:
    using TCustomQV7SkinSpinEdit::TCustomQV7SkinSpinEdit;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
