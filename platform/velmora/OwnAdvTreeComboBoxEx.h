#pragma once

#include <array>
#include <memory>
#include <optional>

#include "platform/vcl/controls/CustomControl.h"
#include "platform/vcl/stdctrls/ComboBox.h"
#include "platform/vcl/stdctrls/TreeView.h"
#include "platform/velmora/Namespace.h"

namespace vcl {
class TEdit;
}

namespace velmora {

class TTreeComboItems;
class TTreeDropDown;

/// Sender, and whether the user cancelled.
using TDropUpEvent = TEvent<void(TObject*, bool)>;

/// A combo box that drops down a tree. Inside stands an editor of the system, in the drop-down a tree view of
/// the system, which has the focus while it shows.
///
/// Closed, Alt+Down and F4 open; Up and Down choose the node that shows before or after. Without an editor
/// (all styles but csDropDown and csSimple) letters choose the next node that begins with them, and so do
/// Home, End, Page Up and Page Down their nodes. For the keys of the open tree see `TTreeDropDown`.
///
/// Colours by index: 0 the arrow (black at first), 1 the button's face (0x00C5D6D9), 2 the line around the
/// drop-down (0x008396A0), 3 the lines around the control and the button (0x008396A0).
class TOwnAdvTreeComboBoxEx : public TCustomControl {
public:
    explicit TOwnAdvTreeComboBoxEx(TComponent* AOwner);
    ~TOwnAdvTreeComboBoxEx() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised when the user changed the text or chose a node; not for changes by code.
    TNotifyEvent OnChange;
    /// Raised just before the tree shows.
    TNotifyEvent OnDropDown;
    /// Raised when the tree was closed; after `OnClick` and `OnChange` of the node that was chosen.
    TDropUpEvent OnDropUp;
    /// Raised before a node is expanded, by the user or by code; a handler may add the nodes below it, or
    /// forbid it.
    TTVExpandingEvent OnTreeExpanding;

    /// The nodes; owned by the control.
    [[nodiscard]] TTreeNodes& GetTreeItems() const;
    /// The chosen node, or null.
    [[nodiscard]] TTreeNode* GetSelected() const { return GetTreeItems().GetSelected(); }
    /// Chooses a node (null: none) and shows its text; raises no event.
    void SetSelected(TTreeNode* value) { GetTreeItems().SetSelected(value); }
    /// The texts of all nodes from the top to the bottom. Setting them makes the nodes anew: tab characters
    /// in front of a text say how many levels deep it lies.
    [[nodiscard]] TStrings& GetItems() const;
    void SetItems(const TStrings& value);
    /// The place of the chosen node in `Items`, or -1. Setting it raises no event.
    [[nodiscard]] int GetItemIndex() const;
    void SetItemIndex(int value);
    [[nodiscard]] bool GetSorted() const { return GetTreeItems().GetSorted(); }
    /// Whether nodes with one parent stand in the order of their texts.
    void SetSorted(bool value) { GetTreeItems().SetSorted(value); }
    /// csDropDown and csSimple have an editor, all others do without.
    [[nodiscard]] TComboBoxStyle GetStyle() const { return FStyle; }
    void SetStyle(TComboBoxStyle value);
    /// Rows of the drop-down; 8 at first.
    [[nodiscard]] int GetDropDownCount() const { return FDropDownCount; }
    void SetDropDownCount(int value) { FDropDownCount = value; }
    /// True while the tree shows.
    [[nodiscard]] bool GetDroppedDown() const { return FDroppedDown; }
    /// Closing by code cancels.
    void SetDroppedDown(bool value);
    /// Shows the text and chooses the first node that has it, or none; raises no event.
    void SetNewText(const String& value);
    void SelectAll();

    [[nodiscard]] TColor GetColors(int index) const;
    void SetColors(int index, TColor value);
    static constexpr int ArrowColorIndex = 0;
    static constexpr int FaceColorIndex = 1;
    static constexpr int DropDownLineColorIndex = 2;
    static constexpr int BorderColorIndex = 3;
    /// Pixels of the button; 17 at first.
    [[nodiscard]] int GetButtonWidth() const { return FButtonWidth; }
    void SetButtonWidth(int value);
    /// The editor and the tree inside, for what is not offered here; owned by the control.
    [[nodiscard]] TEdit& GetEdit() const;
    [[nodiscard]] TCustomTreeView& GetTree() const;

    void SetFocus() override;
    void SetEnabled(bool value) override;
    [[nodiscard]] bool Focused() const override;

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;
    void Resize() override;
    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
    bool DoMouseWheelDown(TShiftState shift, TPoint mousePos) override;
    bool DoMouseWheelUp(TShiftState shift, TPoint mousePos) override;
    void KeyDown(WORD& key, TShiftState shift) override;
    void KeyPress(wchar_t& key) override;
    [[nodiscard]] String GetTextBuf() const override;
    void SetTextBuf(const String& value) override;

    virtual void Change();
    virtual void DropDown();
    virtual void DropUp(bool cancelled);
    virtual bool TreeExpanding(TTreeNode& node);
    /// The place of the button in client pixels.
    [[nodiscard]] virtual TRect GetButtonRect() const;
    /// Draws the button on `GetCanvas()`.
    virtual void PaintButton();
    [[nodiscard]] bool HasEditor() const { return FStyle == csDropDown || FStyle == csSimple; }

private:
    class TInnerEdit;

    void ConnectEditor();
    void ConnectTree();
    void PlaceEditor();
    void PutText(const String& text);
    [[nodiscard]] TTreeNode* FindText(StringView text) const;
    void EditorChanged();
    void NodeSelected(const TTreeNode* node);
    void NodeChanged(const TTreeNode& node);
    void Open();
    void Done(bool cancelled);
    void PressedByUser();
    void Choose(TTreeNode* node);
    [[nodiscard]] TTreeNode* NodeAfter(int steps) const;
    [[nodiscard]] TTreeNode* NodeForKey(WORD key) const;
    [[nodiscard]] TTreeNode* NodeForLetter(wchar_t letter) const;

    TInnerEdit* FEdit;
    TTreeDropDown* FDropDown;
    std::unique_ptr<TTreeComboItems> FItems;
    std::array<TColor, 4> FColors{clBlack, 0x00C5D6D9, 0x008396A0, 0x008396A0};
    TComboBoxStyle FStyle = csDropDown;
    int FDropDownCount = 8;
    int FButtonWidth = 17;
    TTreeNode* FNodeBefore = nullptr;  ///< Chosen when the tree opened.
    std::optional<TLifeGuard> FNodeBeforeLives;
    bool FDroppedDown = false;
    bool FPressCloses = false;  ///< The press under way closed the tree, so it does not open it.
    bool FQuiet = false;        ///< Text and choice are being brought in line by the control itself.
};

}  // namespace velmora
