#pragma once

#include <functional>
#include <memory>

#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/controls/DragTypes.h"
#include "platform/vcl/controls/Messages.h"
#include "platform/vcl/controls/SizeConstraints.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/LifeGuard.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {

class TBasicAction;
class TBasicActionLink;
class TContextMenu;
class TDragImageList;
class TFont;
class TWinControl;
struct THintInfo;

/// A visible component: a rectangle in a parent, with or without a window of its own (`TWinControl`,
/// `TGraphicControl`). Coordinates are pixels of the parent's client area.
///
/// Messages: `WndProc` sees all of them, `Dispatch` is the map from messages to handlers, `DefaultHandler`
/// is what remains. A descendant overrides `Dispatch` with one switch and leaves the rest to its ancestor's.
///
/// Freed in its own event: whoever calls out keeps a `TLifeGuard` and leaves at once when the control is
/// gone. Overrides of `Click`, `MouseDown`, `KeyDown` ... do the same after the inherited call when they go
/// on to touch the control.
class TControl : public TComponent, public TGuarded {
public:
    explicit TControl(TComponent* AOwner);
    ~TControl() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    // --- parent
    [[nodiscard]] TWinControl* GetParent() const { return FParent; }
    /// Moves the control to another parent (null: none). The parent frees it. Raises EInvalidOperation for a
    /// control that would come to stand in itself.
    virtual void SetParent(TWinControl* value);
    [[nodiscard]] bool HasParent() const override { return FParent != nullptr; }
    [[nodiscard]] TComponent* GetParentComponent() const override;
    void SetParentComponent(TComponent* value) override;
    /// This control as one with a window, or null.
    [[nodiscard]] virtual TWinControl* AsWinControl() { return nullptr; }
    [[nodiscard]] const TWinControl* AsWinControl() const {
        return const_cast<TControl*>(this)->AsWinControl();
    }

    // --- geometry (ControlGeometry.cpp)
    [[nodiscard]] int GetLeft() const { return FLeft; }
    [[nodiscard]] int GetTop() const { return FTop; }
    [[nodiscard]] int GetWidth() const { return FWidth; }
    [[nodiscard]] int GetHeight() const { return FHeight; }
    void SetLeft(int value) { SetBounds(value, FTop, FWidth, FHeight); }
    void SetTop(int value) { SetBounds(FLeft, value, FWidth, FHeight); }
    void SetWidth(int value) { SetBounds(FLeft, FTop, value, FHeight); }
    void SetHeight(int value) { SetBounds(FLeft, FTop, FWidth, value); }
    /// Place and size in one step; every change of either goes through here. Constraints and `CanResize` may
    /// change the size first; negative sizes count as 0.
    virtual void SetBounds(int ALeft, int ATop, int AWidth, int AHeight);
    [[nodiscard]] TRect GetBoundsRect() const { return TRect::OfSize(FLeft, FTop, FWidth, FHeight); }
    void SetBoundsRect(const TRect& r) { SetBounds(r.Left, r.Top, r.Width(), r.Height()); }
    /// The inside, from (0, 0). Reading it never makes a window.
    [[nodiscard]] virtual TRect GetClientRect() const;
    [[nodiscard]] int GetClientWidth() const { return GetClientRect().Right; }
    [[nodiscard]] int GetClientHeight() const { return GetClientRect().Bottom; }
    void SetClientWidth(int value) { SetClientSize({value, GetClientHeight()}); }
    void SetClientHeight(int value) { SetClientSize({GetClientWidth(), value}); }
    /// The client area's top left corner in screen pixels. Raises EInvalidOperation "Control '<name>' has no
    /// parent window" for a control that stands in no window.
    [[nodiscard]] virtual TPoint GetClientOrigin() const;
    [[nodiscard]] TPoint ClientToScreen(TPoint point) const;
    [[nodiscard]] TPoint ScreenToClient(TPoint point) const;
    /// The point in client pixels of `ancestor` (null: of the parent).
    [[nodiscard]] TPoint ClientToParent(TPoint point, const TWinControl* ancestor = nullptr) const;
    [[nodiscard]] TPoint ParentToClient(TPoint point, const TWinControl* ancestor = nullptr) const;
    [[nodiscard]] TAlign GetAlign() const { return FAlign; }
    /// A control that was aligned at the side and comes to lie at the top or bottom, or the other way round,
    /// swaps width and height, except while a form file is read.
    void SetAlign(TAlign value);
    /// Anchors that are those of the alignment follow it; others stay as they are.
    [[nodiscard]] TAnchors GetAnchors() const { return FAnchors; }
    void SetAnchors(TAnchors value);
    /// The anchors that go with `Align`; form files leave them out.
    [[nodiscard]] TAnchors GetAlignAnchors() const;
    [[nodiscard]] TSizeConstraints& GetConstraints() const { return *FConstraints; }
    void SetConstraints(const TSizeConstraints& value) { FConstraints->Assign(&value); }
    [[nodiscard]] bool GetAutoSize() const { return FAutoSize; }
    virtual void SetAutoSize(bool value);
    void BringToFront();
    void SendToBack();

    // --- look (ControlProperties.cpp)
    [[nodiscard]] bool GetVisible() const { return FVisible; }
    void SetVisible(bool value);
    void Show();
    void Hide() { SetVisible(false); }
    /// Its own switch; a control on a disabled parent keeps it but gets no input.
    [[nodiscard]] virtual bool GetEnabled() const { return FEnabled; }
    virtual void SetEnabled(bool value);
    [[nodiscard]] TColor GetColor() const { return FColor; }
    /// Also ends `ParentColor`.
    void SetColor(TColor value);
    [[nodiscard]] bool GetParentColor() const { return FParentColor; }
    void SetParentColor(bool value);
    /// The font, to be read or changed in place; changing it ends `ParentFont`.
    [[nodiscard]] TFont& GetFont() const { return *FFont; }
    void SetFont(const TFont& value);
    [[nodiscard]] bool GetParentFont() const { return FParentFont; }
    void SetParentFont(bool value);
    /// The text: caption of most controls, content of editors. `Caption` and `Text` are the same.
    [[nodiscard]] String GetText() const;
    void SetText(const String& value);
    [[nodiscard]] String GetCaption() const { return GetText(); }
    void SetCaption(const String& value) { SetText(value); }
    [[nodiscard]] TCursor GetCursor() const { return FCursor; }
    void SetCursor(TCursor value);
    [[nodiscard]] const String& GetHint() const { return FHint; }
    void SetHint(const String& value);
    [[nodiscard]] bool GetShowHint() const { return FShowHint; }
    void SetShowHint(bool value);
    [[nodiscard]] bool GetParentShowHint() const { return FParentShowHint; }
    void SetParentShowHint(bool value);
    [[nodiscard]] TContextMenu* GetPopupMenu() const { return FPopupMenu; }
    void SetPopupMenu(TContextMenu* value);
    [[nodiscard]] TBasicAction* GetAction() const;
    void SetAction(TBasicAction* value);
    void SetName(const String& name) override;

    /// Style bits that a class sets in its constructor.
    TControlStyle ControlStyle{csCaptureMouse, csClickEvents, csSetCaption, csDoubleClicks};
    [[nodiscard]] TControlState GetControlState() const { return FControlState; }
    [[nodiscard]] bool IsControlState(TControlStateFlag flag) const { return FControlState.Contains(flag); }
    void SetControlState(TControlStateFlag flag, bool present) { FControlState.Put(flag, present); }

    /// True when the control counts as visible: by its own switch, or at design time.
    [[nodiscard]] bool IsShown() const;

    // --- painting
    /// Marks the whole control for painting.
    virtual void Invalidate();
    /// Paints what is marked now.
    virtual void Update();
    /// Paints the whole control now. An opaque one paints straight to the screen, without the way round
    /// through the message queue.
    virtual void Repaint();
    void Refresh() { Repaint(); }
    /// A device context of the control's place on the screen, for drawing outside of painting; `window`
    /// becomes the window that the caller gives it back to with ReleaseDC. Of a control without a window it
    /// is the parent's, moved and clipped.
    [[nodiscard]] virtual HDC GetDeviceContext(HWND& window);

    // --- messages (ControlMessages.cpp)
    /// Sends a message to the control itself, window or not, and returns its result.
    LRESULT Perform(UINT msg, WPARAM wParam = 0, LPARAM lParam = 0);
    template <class T>
    LRESULT Perform(UINT msg, WPARAM wParam, T* lParam) {
        return Perform(msg, wParam, reinterpret_cast<LPARAM>(lParam));
    }
    /// Replaces `WndProc` as the receiver of all messages while it is bound; the substitute passes on what it
    /// does not want with `DefaultWindowProc`.
    TWndMethod WindowProc;
    /// What happens to a message while no substitute is bound.
    void DefaultWindowProc(TMessage& message) { WndProc(message); }
    /// Runs a message through the substitute or `WndProc`.
    void SendTo(TMessage& message);

    // --- mouse (ControlMouse.cpp)
    [[nodiscard]] bool GetMouseCapture() const;
    void SetMouseCapture(bool value);
    /// True while the pointer is on the control, as far as its messages told.
    [[nodiscard]] bool GetMouseInClient() const;
    /// Ends what a press began: nothing becomes a click any more.
    void CancelPress() { FControlState = FControlState - TControlState{csClicked, csLButtonDown}; }

    // --- drag and drop (ControlDrag.cpp, DragObject.h)
    [[nodiscard]] TDragMode GetDragMode() const { return FDragMode; }
    /// dmAutomatic: a press of the left button begins a drag instead of a click.
    virtual void SetDragMode(TDragMode value) { FDragMode = value; }
    [[nodiscard]] TDragKind GetDragKind() const { return FDragKind; }
    void SetDragKind(TDragKind value) { FDragKind = value; }
    /// Shown while the control is dragged over one that accepts it.
    [[nodiscard]] TCursor GetDragCursor() const { return FDragCursor; }
    void SetDragCursor(TCursor value) { FDragCursor = value; }
    /// Begins to drag the control until the button is released, the capture is lost or Escape is pressed:
    /// at once, or when the pointer has moved `threshold` pixels in either direction (less than 0:
    /// `Mouse().GetDragThreshold()`). A press of the control that is under way ends with its mouse-up, and
    /// with its click when the drag is not immediate. Nothing happens while something is being dragged.
    /// Raises EInvalidOperation "Cannot drag a form".
    void BeginDrag(bool immediate, int threshold = -1);
    /// Ends the drag of the control, with or without a drop.
    void EndDrag(bool drop);
    /// True while the control is being dragged: begun, past the threshold, and not yet ended.
    [[nodiscard]] bool Dragging() const;
    /// Something was dropped on the control; raises `OnDragDrop`.
    virtual void DragDrop(TObject* source, int x, int y);

    // --- events that every control can raise; classes publish those that fit
    TNotifyEvent OnClick;
    TNotifyEvent OnDblClick;
    TMouseEvent OnMouseDown;
    TMouseMoveEvent OnMouseMove;
    TMouseEvent OnMouseUp;
    TNotifyEvent OnMouseEnter;
    TNotifyEvent OnMouseLeave;
    TMouseActivateEvent OnMouseActivate;
    TMouseWheelEvent OnMouseWheel;
    TMouseWheelUpDownEvent OnMouseWheelDown;
    TMouseWheelUpDownEvent OnMouseWheelUp;
    TNotifyEvent OnResize;
    TCanResizeEvent OnCanResize;
    TConstrainedResizeEvent OnConstrainedResize;
    TContextPopupEvent OnContextPopup;
    TStartDragEvent OnStartDrag;
    TEndDragEvent OnEndDrag;
    /// Without a handler the control accepts nothing.
    TDragOverEvent OnDragOver;
    TDragDropEvent OnDragDrop;

    // --- rules for form files
    [[nodiscard]] bool IsColorStored() const { return !FParentColor; }
    [[nodiscard]] bool IsFontStored() const { return !FParentFont; }
    [[nodiscard]] bool IsShowHintStored() const { return !FParentShowHint; }
    [[nodiscard]] bool IsCaptionStored() const;
    [[nodiscard]] bool IsEnabledStored() const;
    [[nodiscard]] bool IsVisibleStored() const;
    [[nodiscard]] bool IsHintStored() const;
    [[nodiscard]] bool IsOnClickStored() const;

protected:
    friend class TWinControl;
    friend class TControlLayout;
    friend class TControlActionLink;
    friend class TBaseDragControlObject;
    friend class TDragControlObject;
    friend class TDragSession;

    /// Sees every message first: design state, mouse, hints; then `Dispatch`.
    virtual void WndProc(TMessage& message);
    /// The message map.
    virtual void Dispatch(TMessage& message);
    /// What the classes above left alone.
    virtual void DefaultHandler(TMessage& message);

    void Notification(TComponent* component, TOperation operation) override;
    void DefineProperties(TFiler& filer) override;
    void Loaded() override;
    void BeforeDestruction() override;

    // Reactions, to be overridden.
    virtual void Click();
    virtual void DblClick();
    virtual void MouseDown(TMouseButton button, TShiftState shift, int x, int y);
    virtual void MouseMove(TShiftState shift, int x, int y);
    virtual void MouseUp(TMouseButton button, TShiftState shift, int x, int y);
    virtual void MouseEnter();
    virtual void MouseLeave();
    /// A turn of the wheel; `mousePos` in screen pixels. True when it was used, otherwise the parent gets it.
    virtual bool DoMouseWheel(TShiftState shift, int wheelDelta, TPoint mousePos);
    virtual bool DoMouseWheelDown(TShiftState shift, TPoint mousePos);
    virtual bool DoMouseWheelUp(TShiftState shift, TPoint mousePos);
    virtual TMouseActivate MouseActivate(TMouseButton button, TShiftState shift, int x, int y, UINT hitTest);
    virtual void DoContextPopup(TPoint mousePos, bool& handled);
    /// Called after the size changed; raises `OnResize`.
    virtual void Resize();
    /// May change or refuse a new size (false); asks `OnCanResize`.
    virtual bool CanResize(int& newWidth, int& newHeight);
    /// For `AutoSize`: changes the size to the one the content needs; false refuses it.
    virtual bool CanAutoSize(int& newWidth, int& newHeight);
    virtual void ConstrainedResize(int& minWidth, int& minHeight, int& maxWidth, int& maxHeight);
    /// Lets the size follow the content when `AutoSize` is on.
    virtual void AdjustSize();
    /// Asks the parent to lay out its children.
    virtual void RequestAlign();
    virtual void SetClientSize(TSize value);
    /// Takes over the values of the linked action, with `checkDefaults` only where the control's are still at
    /// their default. Called when the action is linked and when the control is loaded; later changes come
    /// through the link, one by one.
    virtual void ActionChange(TObject* sender, bool checkDefaults);
    [[nodiscard]] virtual std::unique_ptr<TBasicActionLink> CreateActionLink();
    [[nodiscard]] TBasicActionLink* GetActionLink() const { return FActionLink.get(); }
    /// The menu that a right click at the point opens.
    [[nodiscard]] virtual TContextMenu* GetPopupMenuAt(TPoint) { return FPopupMenu; }

    // Text as classes see it without a window's help.
    [[nodiscard]] virtual String GetTextBuf() const { return FText; }
    virtual void SetTextBuf(const String& value) { FText = value; }
    /// The text that the control itself keeps.
    [[nodiscard]] const String& StoredText() const { return FText; }

    /// Marks the area for painting, if it shows; `opaque`: nothing below it needs painting first.
    void InvalidateControl(bool isVisible, bool isOpaque);

    // Place in the parent's list.
    virtual void SetZOrder(bool topmost);
    /// True when the form's designer took the message.
    [[nodiscard]] bool IsDesignMessage(TMessage& message);
    /// Raises an event that carries just the sender; false when the control is gone afterwards.
    bool Raise(const TNotifyEvent& event);
    /// Tells the control with the focus that something else was clicked, so that it closes what it opened.
    void SendCancelMode();
    [[noreturn]] void RaiseNoParentWindow() const;
    virtual void VisibleChanging() {}

    /// A press on a control with dmAutomatic: begins the drag. False when it can't be dragged, so that the
    /// press is one like others.
    virtual bool BeginAutoDrag();
    /// The drag begins: may supply a drag object; raises `OnStartDrag`.
    virtual void DoStartDrag(TDragObject*& dragObject);
    /// The drag of the control is over; raises `OnEndDrag`.
    virtual void DoEndDrag(TObject* target, int x, int y);
    /// The drag of the control ends without a drop; comes before `DoEndDrag`.
    virtual void DragCanceled() {}
    /// Something is dragged over the control, in client pixels: answers whether it may be dropped.
    virtual void DragOver(TObject* source, int x, int y, TDragState state, bool& accept);
    /// The images of which one follows the pointer while the control is dragged; null for none. Not owned.
    [[nodiscard]] virtual TDragImageList* GetDragImages() { return nullptr; }

private:
    struct TAnchorBase {
        TRect Bounds;  ///< As last set by anyone but the layout.
        TSize Parent;  ///< The parent's client size then; what `Bounds` keeps its distance to.
    };

    void FontChanged(TObject* sender);
    void ConstraintsChanged(TObject* sender);
    void ParentFontChanged();
    void ParentColorChanged();
    void ParentShowHintChanged();
    void UpdateAnchorBase();
    bool NegotiateSize(int& width, int& height);
    void ApplyConstraints(int& width, int& height);
    void StoreBounds(const TRect& bounds);
    [[nodiscard]] bool DragsInstead();
    void PrepareMouseMessage(TMessage& message);
    // Handlers of the message map.
    void WmMouseDown(TMessage& message, TMouseButton button, bool isDouble);
    void WmMouseUp(TMessage& message, TMouseButton button);
    void WmMouseMove(TMessage& message);
    void WmCancelMode(TMessage& message);
    void WmContextMenu(TMessage& message);
    void CmMouseWheel(TMessage& message);
    void CmMouseEnterLeave(TMessage& message, bool enter);
    void CmVisibleChanged(TMessage& message);
    void CmCursorChanged();
    void CmDrag(TMessage& message);
    void DoMouseDown(const TMessage& message, TMouseButton button, TShiftState shift);

    TWinControl* FParent = nullptr;
    int FLeft = 0;
    int FTop = 0;
    int FWidth = 0;
    int FHeight = 0;
    TAlign FAlign = alNone;
    TAnchors FAnchors{akLeft, akTop};
    TAnchorBase FAnchorBase;
    TControlState FControlState;
    TColor FColor = clBtnFace;
    TCursor FCursor = crDefault;
    TCursor FDragCursor = crDrag;
    TDragMode FDragMode = dmManual;
    TDragKind FDragKind = dkDrag;
    bool FVisible = true;
    bool FEnabled = true;
    bool FParentColor = true;
    bool FParentFont = true;
    bool FShowHint = false;
    bool FParentShowHint = true;
    bool FAutoSize = false;
    bool FTakingParentFont = false;
    bool FInLayout = false;
    bool FAnchorsRead = false;  ///< By the form file that is being read; `Align` behind them leaves them.
    int FWheelRest = 0;
    String FText;
    String FHint;
    std::unique_ptr<TFont> FFont;
    std::unique_ptr<TSizeConstraints> FConstraints;
    std::unique_ptr<TBasicActionLink> FActionLink;
    TContextMenu* FPopupMenu = nullptr;
};

}  // namespace vcl
