#pragma once

#include <memory>

#include "inputs/Namespace.h"
#include "platform/velmora/OwnAdvTreeComboBoxEx.h"
#include "skin/masking/SkinContainer.h"

namespace qv7skin {

/// The tree combo box with the skin's drop button.
class TOwnAdvTreeComboBoxExCustomButtonPaint : public TOwnAdvTreeComboBoxEx {
public:
    explicit TOwnAdvTreeComboBoxExCustomButtonPaint(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    void PaintButton() override;
};

/// A combo box that drops down a tree: a white frame with round corners around a tree combo box.
///
/// The inner control is made as soon as something is asked of it, at the latest when the form file has been
/// read; never at design time. Without it the properties live in the frame. `OnChange`, `OnClick` and
/// `OnKeyPress` come with the frame as sender, `OnDropUp` and `OnTreeExpanding` with the inner control.
class TCustomQV7SkinTreeComboBox : public TCustomQV7SkinContainer {
public:
    explicit TCustomQV7SkinTreeComboBox(TComponent* AOwner);
    ~TCustomQV7SkinTreeComboBox() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised when the user changed the text or chose a node.
    TNotifyEvent OnChange;
    /// Raised when the tree was closed; the flag says whether the user cancelled.
    TDropUpEvent OnDropUp;
    /// Raised before a node is expanded: a handler may add the nodes below it, or forbid it.
    TTVExpandingEvent OnTreeExpanding;

    [[nodiscard]] TComboBoxStyle GetStyle() const;
    void SetStyle(TComboBoxStyle Value);
    /// The place of the chosen node in `Items`, or -1.
    [[nodiscard]] int GetItemIndex() const;
    void SetItemIndex(int Value);
    /// The texts of the nodes from the top to the bottom; tab characters in front of a text that is added say
    /// how many levels deep it lies.
    [[nodiscard]] TStrings& GetItems() const;
    void SetItems(const TStrings& Value);
    [[nodiscard]] bool GetSorted() const;
    void SetSorted(bool Value);
    /// Rows of the drop-down. Raises EInvalidOperation while there is no inner control.
    [[nodiscard]] int GetDropDownCount() const;
    void SetDropDownCount(int Value);
    /// The chosen node; null for none, and at design time.
    [[nodiscard]] TTreeNode* GetSelected() const;
    /// The nodes. Raises EInvalidOperation while there is no inner control.
    [[nodiscard]] TTreeNodes& GetTreeItems() const;
    /// Shows the text and chooses the node that has it; does nothing at design time.
    void SetNewText(const String& Value);
    void SelectAll();
    /// The control of the frame; null at design time.
    [[nodiscard]] TOwnAdvTreeComboBoxExCustomButtonPaint* GetComboBox() const;

    void SetFocus() override;
    void SetEnabled(bool Value) override;

    /// Makes the inner control, unless there is one or the frame is being designed.
    virtual void CreateComboBox();
    virtual void DoChange(TObject* Sender);
    virtual void DoClick(TObject* Sender);
    virtual void DoKeyPress(TObject* Sender, wchar_t& Key);
    void DoTreeExpanding(TObject* Sender, TTreeNode* Node, bool& AllowExpansion);
    void DoDropUp(TObject* Sender, bool Cancelled);

protected:
    void Loaded() override;
    void CreateWnd() override;
    [[nodiscard]] String GetTextBuf() const override;
    void SetTextBuf(const String& value) override;

private:
    [[nodiscard]] TOwnAdvTreeComboBoxExCustomButtonPaint& NeedComboBox() const;

    TOwnAdvTreeComboBoxExCustomButtonPaint* FComboBox = nullptr;
    TComboBoxStyle FStyle = csDropDown;
    int FItemIndex = -1;
    std::unique_ptr<TStringList> FItems;
    bool FSorted = false;
    bool FIsWhole = false;  ///< Construction is over and destruction has not begun.
};

/// The tree combo box for forms.
class TQV7SkinTreeComboBox : public TCustomQV7SkinTreeComboBox {
public:
    using TCustomQV7SkinTreeComboBox::TCustomQV7SkinTreeComboBox;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
