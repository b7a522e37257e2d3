#pragma once

#include <memory>

#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/StringList.h"

namespace vcl {

/// An editor with a list to drop down (csDropDown), one whose list always shows (csSimple), a list without an
/// editor (csDropDownList), and lists whose entries the host draws, all alike or each in a size of its own.
enum class TComboBoxStyle { csDropDown, csSimple, csDropDownList, csOwnerDrawFixed, csOwnerDrawVariable };
using enum TComboBoxStyle;

template <>
struct TEnumNames<TComboBoxStyle> {
    static std::span<const wchar_t* const> Names();
};

/// Sender, entry, place in pixels of the canvas' surface, and the entry's state (bits of ODS_); the handler
/// draws with the device context.
using TDrawItemEvent = TEvent<void(TObject*, int, const TRect&, UINT, HDC)>;
/// Sender, entry, and its height in pixels to be changed.
using TMeasureItemEvent = TEvent<void(TObject*, int, int&)>;

/// The combo box of the system. Alt+Down and F4 drop its list down, Escape closes it, arrows and first
/// letters choose.
class TCustomComboBox : public TWinControl {
public:
    explicit TCustomComboBox(TComponent* AOwner);
    ~TCustomComboBox() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised when the user changed the text or chose an entry; not for changes by code.
    TNotifyEvent OnChange;
    /// Raised when the user chose an entry, before `OnChange`.
    TNotifyEvent OnSelect;
    /// Raised just before the list shows and after it was closed.
    TNotifyEvent OnDropDown;
    TNotifyEvent OnCloseUp;
    TDrawItemEvent OnDrawItem;
    TMeasureItemEvent OnMeasureItem;

    /// The entries with their objects; owned by the control. They survive the window's being made anew.
    [[nodiscard]] TStrings& GetItems() const;
    void SetItems(const TStrings& value) { GetItems().Assign(&value); }
    /// The chosen entry, or -1. Setting it raises no event.
    [[nodiscard]] int GetItemIndex() const;
    void SetItemIndex(int value);
    [[nodiscard]] bool GetSorted() const { return FSorted; }
    void SetSorted(bool value);
    [[nodiscard]] TComboBoxStyle GetStyle() const { return FStyle; }
    void SetStyle(TComboBoxStyle value);
    /// Entries that the list shows at most without scrolling; 8 at first.
    [[nodiscard]] int GetDropDownCount() const { return FDropDownCount; }
    void SetDropDownCount(int value) { FDropDownCount = value; }
    /// Height of an entry in pixels; 0 for that of the font. Counts for entries that the host draws.
    [[nodiscard]] int GetItemHeight() const;
    void SetItemHeight(int value);
    [[nodiscard]] bool IsItemHeightStored() const { return FItemHeight != 0; }
    /// Greatest number of characters that the user may type; 0: no limit.
    [[nodiscard]] int GetMaxLength() const { return FMaxLength; }
    void SetMaxLength(int value);
    /// True while the list is open.
    [[nodiscard]] bool GetDroppedDown() const;
    void SetDroppedDown(bool value);
    [[nodiscard]] int GetSelStart() const;
    void SetSelStart(int value);
    [[nodiscard]] int GetSelLength() const;
    void SetSelLength(int value);
    void SelectAll();
    void Clear();
    /// The windows of the system inside: the list, and the editor of the styles that have one (else null).
    [[nodiscard]] HWND ListHandle() const { return FListWindow; }
    [[nodiscard]] HWND EditHandle() const { return FEditWindow; }

    [[nodiscard]] bool Focused() const override;

protected:
    void Dispatch(TMessage& message) override;
    void DefaultHandler(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    [[nodiscard]] String GetTextBuf() const override;

    /// True for the styles with an editor of the system inside.
    [[nodiscard]] bool HasEditor() const { return FStyle == csDropDown || FStyle == csSimple; }
    /// Raises `OnChange`.
    virtual void Change();
    /// An entry was chosen: raises `OnSelect`, then `OnChange`.
    virtual void Select();
    virtual void DropDown();
    virtual void CloseUp();
    /// Draws an entry whose list the host draws; the default asks `OnDrawItem`, else draws the text.
    virtual void DrawItem(const DRAWITEMSTRUCT& item);
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

private:
    class TItems;
    class TAsking;

    static LRESULT CALLBACK EditProcedure(HWND window, UINT msg, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                          DWORD_PTR self);
    bool EditMessage(TMessage& message);
    void FillWindow();
    void CnCommand(const TMessage& message);
    void CnMeasureItem(MEASUREITEMSTRUCT& item);
    void SizeList();

    std::unique_ptr<TItems> FItems;
    HWND FListWindow = nullptr;
    HWND FEditWindow = nullptr;
    TComboBoxStyle FStyle = csDropDown;
    int FSavedIndex = -1;  ///< The chosen entry while there is no window.
    int FDropDownCount = 8;
    int FItemHeight = 0;
    int FMaxLength = 0;
    bool FSorted = false;
    bool FEditFocused = false;
    bool FEditorAsks = false;
};

/// The combo box for forms.
class TComboBox : public TCustomComboBox {
public:
    using TCustomComboBox::TCustomComboBox;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
