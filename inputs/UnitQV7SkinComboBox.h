#pragma once

#include <memory>

#include "inputs/Namespace.h"
#include "platform/flatstyle/FlatComboBox.h"
#include "platform/tms/CurvyPanel.h"

namespace qv7skin {

/// The flat combo box with the skin's drop button: a small triangle, and on demand a line at its left.
class TFlatComboBoxExt : public TFlatComboBox {
public:
    explicit TFlatComboBoxExt(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Whether a line separates the button, where its face and its border have one colour; false at first.
    [[nodiscard]] bool GetDrawButtonLine() const { return FDrawButtonLine; }
    void SetDrawButtonLine(bool Value);

protected:
    void PaintButton() override;

private:
    bool FDrawButtonLine = false;
};

/// The skin's combo box: a white frame with round corners around a flat combo box of the system.
///
/// The inner control is made when the form file has been read (`Loaded`), never at design time; a control
/// made in code gets it by `CreateComboBox`. Until then the properties live in the frame, afterwards the
/// inner control is what counts. Its events come with the frame as sender.
class TCustomQV7SkinComboBox : public TCurvyPanel {
public:
    explicit TCustomQV7SkinComboBox(TComponent* AOwner);
    ~TCustomQV7SkinComboBox() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised when the user changed the text or chose an entry.
    TNotifyEvent OnChange;

    [[nodiscard]] int GetItemIndex() const;
    void SetItemIndex(int Value);
    [[nodiscard]] TStrings& GetItems() const;
    void SetItems(const TStrings& Value);
    [[nodiscard]] bool GetSorted() const;
    void SetSorted(bool Value);
    [[nodiscard]] TComboBoxStyle GetStyle() const;
    void SetStyle(TComboBoxStyle Value);
    /// Entries that the list shows without scrolling; 14 at first. Raises EInvalidOperation while there is no
    /// inner control.
    [[nodiscard]] int GetDropDownCount() const;
    void SetDropDownCount(int Value);
    /// The control of the frame; null before it is made.
    [[nodiscard]] TFlatComboBoxExt* GetComboBox() const { return FComboBox; }

    void SelectAll();
    /// Chooses the entry whose text is the number, or writes the number as the text.
    void SetValue(double Value);
    /// Chooses the entry whose text is the number; else, going backward, the first one whose number is not
    /// greater (a text that is no number counts as 0); else the one with the index `DefaultIndex`.
    void SetNearestIndexForValue(int Value, int DefaultIndex);
    /// Puts the inner control where it fits its style: a list without an editor stands a pixel higher.
    void AdjustComboBoxTopForCurrentStyle();
    void SetFocus() override;
    void SetEnabled(bool Value) override;

    /// Makes the inner control, unless there is one or the frame is being designed.
    virtual void CreateComboBox();
    virtual void DoChange(TObject* Sender);
    virtual void DoClick(TObject* Sender);
    virtual void DoKeyPress(TObject* Sender, wchar_t& Key);

protected:
    void Loaded() override;
    void ConstrainedResize(int& minWidth, int& minHeight, int& maxWidth, int& maxHeight) override;
    [[nodiscard]] String GetTextBuf() const override;
    void SetTextBuf(const String& value) override;

private:
    [[nodiscard]] TFlatComboBoxExt& NeedComboBox() const;
    [[nodiscard]] int IndexOfText(const String& text) const;

    TFlatComboBoxExt* FComboBox = nullptr;
    TComboBoxStyle FStyle = csDropDown;
    int FItemIndex = -1;
    std::unique_ptr<TStringList> FItems;
    bool FSorted = false;
};

/// The skin's combo box for forms.
class TQV7SkinComboBox : public TCustomQV7SkinComboBox {
public:
    using TCustomQV7SkinComboBox::TCustomQV7SkinComboBox;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
