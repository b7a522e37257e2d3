#pragma once

#include "platform/vcl/controls/GraphicControl.h"

namespace vcl {

/// What shows while a splitter is dragged: nothing, a dark bar, the controls in their new size at once, or a
/// dotted bar. Without `rsUpdate` the controls change when the mouse is released.
enum class TResizeStyle { rsNone, rsLine, rsUpdate, rsPattern };
using enum TResizeStyle;

template <>
struct TEnumNames<TResizeStyle> {
    static std::span<const wchar_t* const> Names();
};

/// Sender, the size in pixels that the control is to get, and whether the splitter may go there.
using TSplitterCanResizeEvent = TEvent<void(TObject*, int&, bool&)>;

/// A bar between an aligned control and the rest of the parent, with which the user changes the control's
/// size: the control that it is aligned behind, at the same edge. A splitter with alLeft or alRight changes
/// widths, one with alTop or alBottom heights.
///
/// Put the control, the splitter with the same `Align`, and a control with alClient on the parent. Esc or the
/// loss of the mouse ends a drag and gives the control its former size back.
class TSplitter : public TGraphicControl {
public:
    explicit TSplitter(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Whether a control that is made smaller than `MinSize` disappears altogether; true at first. Without it
    /// `MinSize` is where the splitter stops.
    [[nodiscard]] bool GetAutoSnap() const { return FAutoSnap; }
    void SetAutoSnap(bool value) { FAutoSnap = value; }
    /// Whether the bar has a light and a dark edge.
    [[nodiscard]] bool GetBeveled() const { return FBeveled; }
    void SetBeveled(bool value);
    /// The least size of the control in pixels, 30 at first, at least 1.
    [[nodiscard]] int GetMinSize() const { return FMinSize; }
    void SetMinSize(int value);
    [[nodiscard]] TResizeStyle GetResizeStyle() const { return FResizeStyle; }
    void SetResizeStyle(TResizeStyle value);

    /// Raised for each new size on the way, after `MinSize` and before `AutoSnap`. A refused one leaves the
    /// splitter where it was last accepted.
    TSplitterCanResizeEvent OnCanResize;
    /// Raised after the control got another size, with `rsUpdate` for each on the way.
    TNotifyEvent OnMoved;
    /// Raised after the splitter has painted itself on `GetCanvas()`.
    TNotifyEvent OnPaint;

    /// The control that a drag would resize now, or null.
    [[nodiscard]] TControl* FindControl() const;

protected:
    void Dispatch(TMessage& message) override;
    void Notification(TComponent* component, TOperation operation) override;
    void Paint() override;
    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
    void MouseMove(TShiftState shift, int x, int y) override;
    void MouseUp(TMouseButton button, TShiftState shift, int x, int y) override;
    void RequestAlign() override;
    /// Asks about a new size and may change it; false refuses it. Raises `OnCanResize` and snaps.
    virtual bool DoCanResize(int& NewSize);

private:
    [[nodiscard]] bool IsUpright() const { return GetAlign() == alLeft || GetAlign() == alRight; }
    [[nodiscard]] bool IsInSizing() const { return FControl != nullptr; }
    [[nodiscard]] int SizeOf(const TControl& control) const;
    [[nodiscard]] bool StandsBehind(const TControl& control) const;
    [[nodiscard]] int MaxSize() const;
    void BeginSizing(TControl& control, TPoint mouse);
    bool MoveTo(TPoint mouse);
    bool ApplySize(int size);
    void ResizeControl(int size);
    void MoveInside(TPoint way);
    [[nodiscard]] bool LiesInside(const TControl& control) const;
    void EndSizing();
    bool CancelSizing();
    // The bar that shows where the splitter would go.
    void ShowBar();
    void HideBar();
    [[nodiscard]] TRect BarRect() const;

    bool FAutoSnap = true;
    bool FBeveled = false;
    int FMinSize = 30;
    TResizeStyle FResizeStyle = rsPattern;
    bool FWasUpright = true;   ///< When it was aligned last.
    bool FWasAligned = false;  ///< At an edge, when it was laid out last.

    // --- while the user drags
    TControl* FControl = nullptr;  ///< What is resized.
    TPoint FPressed;               ///< Where the mouse went down, in pixels of the parent.
    int FOldSize = 0;              ///< The control's size then.
    int FNewSize = 0;              ///< The last accepted one.
    TRect FBar;                    ///< The bar on the screen, in pixels of the parent; empty: none.
    bool FBarIsDotted = false;     ///< How that bar was drawn.
};

}  // namespace vcl
