#pragma once

#include <memory>
#include <vector>

#include "platform/vcl/controls/WinControl.h"
#include "platform/vcl/core/StringList.h"

namespace vcl {

/// The list box of the system.
class TCustomListBox : public TWinControl {
public:
    explicit TCustomListBox(TComponent* AOwner);
    ~TCustomListBox() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The entries with their objects; owned by the control. They survive the window's being made anew.
    [[nodiscard]] TStrings& GetItems() const;
    void SetItems(const TStrings& value) { GetItems().Assign(&value); }
    [[nodiscard]] int GetCount() const { return GetItems().GetCount(); }
    /// The selected entry (with `MultiSelect`: the one with the focus), or -1. Setting it raises no event.
    [[nodiscard]] int GetItemIndex() const;
    void SetItemIndex(int value);
    [[nodiscard]] bool GetSorted() const { return FSorted; }
    void SetSorted(bool value);
    [[nodiscard]] bool GetMultiSelect() const { return FMultiSelect; }
    void SetMultiSelect(bool value);
    [[nodiscard]] bool GetIntegralHeight() const { return FIntegralHeight; }
    /// Whether the height is rounded down to whole entries.
    void SetIntegralHeight(bool value);
    [[nodiscard]] TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle value);
    /// The state of each entry; raises EListError outside of the list.
    [[nodiscard]] bool GetSelected(int index) const;
    void SetSelected(int index, bool value);
    [[nodiscard]] int GetSelCount() const;
    [[nodiscard]] int GetTopIndex() const;
    void SetTopIndex(int value);
    [[nodiscard]] int GetItemHeight() const;
    /// The entry at the point in client pixels, or -1.
    [[nodiscard]] int ItemAtPos(TPoint pos) const;
    /// The place of the entry in client pixels.
    [[nodiscard]] TRect ItemRect(int index) const;
    void Clear() { GetItems().Clear(); }

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    void CreateWnd() override;
    void DestroyWnd() override;
    [[nodiscard]] TRect GetFrameInsets() const override;

private:
    class TItems;

    /// Where the list stands while it has no window.
    struct TPlace {
        std::vector<int> Selected;
        int Current = -1;
        int Top = 0;
    };
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    [[nodiscard]] TPlace PresentPlace() const;
    void Restore(const TPlace& place);
    void FillWindow();
    [[nodiscard]] bool SelectsSeveral() const;
    void CheckIndex(int index) const;

    std::unique_ptr<TItems> FItems;
    TPlace FPlace;
    TBorderStyle FBorderStyle = bsSingle;
    bool FSorted = false;
    bool FMultiSelect = false;
    bool FIntegralHeight = false;
};

/// The list box for forms.
class TListBox : public TCustomListBox {
public:
    using TCustomListBox::TCustomListBox;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
