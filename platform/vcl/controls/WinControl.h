#pragma once

#include <memory>
#include <vector>

#include "platform/vcl/controls/Control.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

class TBrush;
class TParentForm;

/// What `CreateWindowExW` will be called with; `CreateParams` fills it in, ancestor first.
struct TCreateParams {
    String Caption;
    DWORD Style = 0;
    DWORD ExStyle = 0;
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;
    HWND WndParent = nullptr;
    void* Param = nullptr;
    /// The window class: of the system when `CreateSubClass` named one, else our own, registered on demand
    /// under `WinClassName`.
    WNDCLASSW WindowClass{};
    String WinClassName;
};

/// A control with a window: it can have child controls, the focus and the keyboard.
///
/// The window is made when it is first needed (`HandleNeeded`, or when it is to be shown) and may be
/// destroyed and made anew at any time (`RecreateWnd`); nothing but the control's fields survives that.
/// `CreateParams`, `CreateWnd` and `DestroyWnd` are the places where a class takes part.
///
/// The window procedure never lets an exception out (`AppServices().HandleException`) and never touches the
/// control after a handler freed it.
class TWinControl : public TControl {
public:
    explicit TWinControl(TComponent* AOwner);
    ~TWinControl() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    [[nodiscard]] TWinControl* AsWinControl() override { return this; }
    /// This control as the form that its children ask for focus and dialog keys, or null.
    [[nodiscard]] virtual TParentForm* AsParentForm() { return nullptr; }

    // --- the window (WinControlWindow.cpp)
    /// The window, made now if need be together with those of the parents. Raises EInvalidOperation "Control
    /// '<name>' has no parent window" when there is nothing to put it in.
    [[nodiscard]] HWND GetHandle();
    /// The window as far as there is one, else 0; never makes it.
    [[nodiscard]] HWND WindowHandle() const { return FHandle; }
    [[nodiscard]] bool HandleAllocated() const { return FHandle != nullptr; }
    void HandleNeeded();
    /// Makes the window anew with fresh parameters; keeps place, text, focus, visibility and children.
    void RecreateWnd() { Perform(CM_RECREATEWND); }
    /// A foreign window that stands in for the parent; 0 for none.
    [[nodiscard]] HWND GetParentWindow() const { return FParentWindow; }
    void SetParentWindow(HWND value);

    // --- children (WinControlChildren.cpp)
    [[nodiscard]] int GetControlCount() const {
        return static_cast<int>(FGraphicControls.size() + FWinControls.size());
    }
    /// Children from the bottom to the top, those without a window first. Raises EListError.
    [[nodiscard]] TControl* GetControl(int index) const;
    [[nodiscard]] const std::vector<TControl*>& GraphicControls() const { return FGraphicControls; }
    [[nodiscard]] const std::vector<TWinControl*>& WinControls() const { return FWinControls; }
    void InsertControl(TControl* control);
    void RemoveControl(TControl* control);
    /// True for the control itself and everything below it.
    [[nodiscard]] bool ContainsControl(const TControl* control) const;
    /// The topmost child at the point (client pixels), or null. Windowed ones count with `allowWinControls`;
    /// with `allLevels` the search goes on inside them.
    [[nodiscard]] TControl* ControlAtPos(TPoint pos, bool allowDisabled, bool allowWinControls = false,
                                         bool allLevels = false) const;
    [[nodiscard]] TControl* FindChildControl(StringView name) const;
    /// Sends the message to the children one by one until one answers with a Result other than 0.
    void Broadcast(TMessage& message);
    /// The same for messages whose answers do not matter.
    void NotifyControls(UINT msg);
    void GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) override;
    /// Moves a child to that place of `GetControl`, as far as its kind goes: those without a window stay
    /// first.
    void SetChildOrder(TComponent* child, int order) override;

    // --- layout (WinControlGeometry.cpp, Layout.h)
    void DisableAlign() { ++FAlignLevel; }
    void EnableAlign();
    /// Lays out the children now.
    void Realign() { AlignControl(nullptr); }
    void ScrollBy(int dx, int dy);
    void SetBounds(int ALeft, int ATop, int AWidth, int AHeight) override;
    [[nodiscard]] TRect GetClientRect() const override;
    [[nodiscard]] TPoint GetClientOrigin() const override;

    // --- focus and tab order (WinControlFocus.cpp)
    [[nodiscard]] virtual bool Focused() const;
    /// Raises EInvalidOperation "Cannot focus a disabled or invisible window".
    virtual void SetFocus();
    /// True when the control and all its parents are visible and enabled.
    [[nodiscard]] virtual bool CanFocus() const;
    [[nodiscard]] bool GetTabStop() const { return FTabStop; }
    void SetTabStop(bool value);
    [[nodiscard]] TTabOrder GetTabOrder() const;
    void SetTabOrder(TTabOrder value);
    /// Children by tab order, with (`GetTabOrderList`) those of children after their parent.
    [[nodiscard]] const std::vector<TWinControl*>& TabList() const { return FTabList; }
    void GetTabOrderList(std::vector<TWinControl*>& list) const;
    /// The next control in the direction after `current` (null: from the start), round the end; null if none.
    [[nodiscard]] TWinControl* FindNextControl(TWinControl* current, bool goForward, bool checkTabStop,
                                               bool checkParent) const;
    /// Gives the focus to the next control in tab order.
    void SelectNext(TWinControl* current, bool goForward, bool checkTabStop);
    void SelectFirst();

    // --- showing and painting (WinControlPainting.cpp)
    /// True when the window is visible and so are all parents.
    [[nodiscard]] bool GetShowing() const;
    [[nodiscard]] bool GetDoubleBuffered() const { return FDoubleBuffered; }
    /// Paints through a buffer in memory. Also ends `ParentDoubleBuffered`.
    void SetDoubleBuffered(bool value);
    [[nodiscard]] bool GetParentDoubleBuffered() const { return FParentDoubleBuffered; }
    void SetParentDoubleBuffered(bool value);
    [[nodiscard]] bool GetParentBackground() const { return ControlStyle.Contains(csParentBackground); }
    virtual void SetParentBackground(bool value);
    /// The brush with which the background is erased; its colour follows `Color`.
    [[nodiscard]] TBrush& GetBrush() const { return *FBrush; }
    void Invalidate() override;
    void Update() override;
    void Repaint() override;
    [[nodiscard]] HDC GetDeviceContext(HWND& window) override;
    /// Paints the control with its children into a foreign device context at the point.
    void PaintTo(HDC dc, int x, int y);
    [[nodiscard]] bool GetCtl3D() const { return FCtl3D; }
    void SetCtl3D(bool value);
    [[nodiscard]] bool GetParentCtl3D() const { return FParentCtl3D; }
    void SetParentCtl3D(bool value);
    [[nodiscard]] TBevelCut GetBevelInner() const { return FBevelInner; }
    void SetBevelInner(TBevelCut value);
    [[nodiscard]] TBevelCut GetBevelOuter() const { return FBevelOuter; }
    void SetBevelOuter(TBevelCut value);
    [[nodiscard]] TBevelKind GetBevelKind() const { return FBevelKind; }
    void SetBevelKind(TBevelKind value);
    [[nodiscard]] TBevelEdges GetBevelEdges() const { return FBevelEdges; }
    void SetBevelEdges(TBevelEdges value);
    [[nodiscard]] TBevelWidth GetBevelWidth() const { return FBevelWidth; }
    void SetBevelWidth(TBevelWidth value);
    /// Pixels between the window's edge and the area where children are laid out.
    [[nodiscard]] TBorderWidth GetBorderWidth() const { return FBorderWidth; }
    void SetBorderWidth(TBorderWidth value);

    [[nodiscard]] bool IsCtl3DStored() const { return !FParentCtl3D; }
    [[nodiscard]] bool IsDoubleBufferedStored() const { return !FParentDoubleBuffered; }

    TKeyEvent OnKeyDown;
    TKeyPressEvent OnKeyPress;
    TKeyEvent OnKeyUp;
    TNotifyEvent OnEnter;
    TNotifyEvent OnExit;

protected:
    friend class TControl;
    friend class TControlLayout;
    friend bool OfferKeyMessage(const MSG& message);

    void WndProc(TMessage& message) override;
    void Dispatch(TMessage& message) override;
    void DefaultHandler(TMessage& message) override;
    void Notification(TComponent* component, TOperation operation) override;
    void DefineProperties(TFiler& filer) override;
    void Loaded() override;
    void BeforeDestruction() override;

    // --- taking part in the window's making
    /// Fills in the parameters; overrides call the inherited one first.
    virtual void CreateParams(TCreateParams& params);
    /// Names the system's window class that the control builds on ("EDIT", "BUTTON" ...).
    static void CreateSubClass(TCreateParams& params, const wchar_t* controlClass);
    /// Makes the window and brings it to the control's state; overrides call the inherited one first.
    virtual void CreateWnd();
    virtual void CreateWindowHandle(const TCreateParams& params);
    virtual void CreateHandle();
    /// Destroys the window; overrides save what they need and call the inherited one last.
    virtual void DestroyWnd();
    virtual void DestroyWindowHandle();
    virtual void DestroyHandle();
    /// Where the window stands for the control's bounds: there, as far as the system can hold such a place
    /// (16 bits with a sign, 0 to 32,767 for sizes). The bounds themselves have no limits. Descendants whose
    /// window shows only a part of them override it.
    [[nodiscard]] virtual TRect WindowPlace(const TRect& bounds) const;
    /// Moves the window to the place of the bounds, for descendants whose `WindowPlace` changed.
    void PlaceWindow();
    /// Pixels that the window's frame takes at each edge of the bounds, asked while there is no window.
    /// Descendants with borders of the system override it.
    [[nodiscard]] virtual TRect GetFrameInsets() const;
    /// The system's procedure behind ours.
    [[nodiscard]] WNDPROC GetDefWndProc() const { return FDefWndProc; }
    /// True when the window builds on a class of the system, which then keeps the text and paints itself.
    [[nodiscard]] bool IsSystemClass() const;

    // --- children and layout
    /// The area in which `Align` places children; may be narrowed.
    virtual void AdjustClientRect(TRect& rect);
    /// Lays out the children inside the rectangle; `control` is the one that changed, or null.
    virtual void AlignControls(TControl* control, TRect& rect);
    void AlignControl(TControl* control);
    /// For `alCustom`: called in the order of the children.
    virtual void CustomAlignPosition(TControl*, int&, int&, int&, int&, TRect&) {}
    virtual bool CustomAlignInsertBefore(TControl*, TControl*) { return false; }
    bool CanAutoSize(int& newWidth, int& newHeight) override;
    void SetClientSize(TSize value) override;
    void SetZOrder(bool topmost) override;
    /// Before a child comes in: may raise an error to refuse it.
    virtual void ValidateInsert(TControl*) {}

    // --- showing and painting
    /// Brings windows and visibility of the subtree into line with `Visible`.
    void UpdateShowing();
    void UpdateControlState();
    /// WM_PAINT for controls that paint themselves: `PaintWindow`, then the children without a window.
    void PaintHandler(TMessage& message);
    /// Paints the control itself; the default asks the window's class.
    virtual void PaintWindow(HDC dc);
    /// Paints the children without a window, from `first` on (null: all).
    void PaintControls(HDC dc, TControl* first);
    virtual void ShowControl(TControl* control);

    // --- keyboard and focus
    virtual void DoEnter();
    virtual void DoExit();
    virtual void KeyDown(WORD& key, TShiftState shift);
    virtual void KeyPress(wchar_t& key);
    virtual void KeyUp(WORD& key, TShiftState shift);
    /// Form preview, then `KeyDown`; true when the key was used.
    bool DoKeyDown(TMessage& message);
    bool DoKeyPress(TMessage& message);
    bool DoKeyUp(TMessage& message);
    /// True when the key message is a short cut of a popup menu, the form or the program; it is run then.
    virtual bool IsMenuKey(TMessage& message);
    /// Lets the form take the focus away from the control; `removing`: for good.
    void RemoveFocus(bool removing);

    /// Reflects a message of a child window (WM_COMMAND ...) to its control as CN_...; false when the window
    /// is no control.
    [[nodiscard]] static bool DoControlMsg(HWND window, TMessage& message);
    /// Hands a mouse message to the child without a window that it is for; true when that was done.
    [[nodiscard]] bool IsControlMouseMsg(TMessage& message);

    // --- text: of a system class the window keeps it
    [[nodiscard]] String GetTextBuf() const override;
    void SetTextBuf(const String& value) override;

    HWND FHandle = nullptr;
    WNDPROC FDefWndProc = nullptr;

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT msg, WPARAM wParam, LPARAM lParam);
    void WindowGone();
    void CmRecreateWnd();
    void PlaceInZOrder();
    // geometry
    void MoveWindowTo(const TRect& next);
    void MovePartly(const TRect& next);
    [[nodiscard]] TRect WindowBounds() const;
    [[nodiscard]] bool HasWindowEverywhere(int dx, int dy) const;
    void MoveWithoutWindow(const TRect& next);
    void TakeWindowBounds();
    [[nodiscard]] TSize FrameSize() const;
    void WmWindowPosChanged(TMessage& message);
    void WmSize(TMessage& message);
    // children
    [[nodiscard]] bool HasChild(const TControl* control) const;
    void TakeOut(TControl* control);
    [[nodiscard]] static bool IsHit(TControl& child, TPoint pos, bool allowDisabled);
    [[nodiscard]] TPoint InsideOf(TPoint parentPoint) const;
    void ApplyLoadedTabOrders();
    // messages of the system's controls
    void Reflect(HWND window, TMessage& message);
    [[nodiscard]] static HWND DrawItemWindow(const DRAWITEMSTRUCT& item);
    [[nodiscard]] HWND MeasureItemWindow(const MEASUREITEMSTRUCT& item) const;
    // mouse
    bool GoesToHolder(TControl& holder, TMessage& message);
    [[nodiscard]] TControl* MouseTarget(TPoint pos);
    [[nodiscard]] TCursor CursorUnderPointer();
    void WmMouseLeave(TMessage& message);
    void WmSetCursor(TMessage& message);
    void WmMouseActivate(TMessage& message);
    void WmMouseWheel(TMessage& message);
    void WmContextMenuInside(TMessage& message);
    // keyboard
    bool PreviewedByForm(TMessage& message);
    bool OfferToForm(UINT msg, const TMessage& key);
    void CnKeyDown(TMessage& message);
    void CnSysKeyDown(TMessage& message);
    void CnChar(TMessage& message);
    void CnSysChar(TMessage& message);
    // painting and frame
    [[nodiscard]] bool CanPaintAtOnce() const;
    void PaintBuffered(HDC target, const TRect& area);
    void PaintParentBackground(HDC dc);
    [[nodiscard]] TPoint PaintFrameTo(HDC dc);
    [[nodiscard]] int BevelSize() const;
    void DrawBevels(HDC dc) const;
    void WmPaint(TMessage& message);
    void WmPrintClient(TMessage& message);
    void WmEraseBkgnd(TMessage& message);
    void WmNcCalcSize(TMessage& message);
    void WmNcPaint(TMessage& message);
    void CmInvalidate(const TMessage& message);
    void CmBorderChanged();
    // properties
    void CmVisibleChanged(TMessage& message);
    void CmEnabledChanged();
    void CmColorChanged();
    void CmFontChanged();
    void CmShowingChanged();
    void CmTabStopChanged();
    void CmCtl3DChanged();
    void ParentCtl3DChanged();
    void ParentDoubleBufferedChanged();

    HWND FParentWindow = nullptr;
    std::vector<TControl*> FGraphicControls;
    std::vector<TWinControl*> FWinControls;
    std::vector<TWinControl*> FTabList;
    std::unique_ptr<TBrush> FBrush;
    TTabOrder FLoadedTabOrder = -1;
    int FAlignLevel = 0;
    TSize FFrame;
    TBevelEdges FBevelEdges{beLeft, beTop, beRight, beBottom};
    TBevelCut FBevelInner = bvRaised;
    TBevelCut FBevelOuter = bvLowered;
    TBevelKind FBevelKind = bkNone;
    TBevelWidth FBevelWidth = 1;
    TBorderWidth FBorderWidth = 0;
    bool FTabStop = false;
    bool FShowing = false;
    bool FFocused = false;
    bool FComesShown = false;
    bool FFrameKnown = false;
    bool FDoubleBuffered = false;
    bool FParentDoubleBuffered = true;
    bool FCtl3D = true;
    bool FParentCtl3D = true;
};

/// The control whose window it is, or null.
[[nodiscard]] TWinControl* FindControl(HWND window);
/// The form on which the control stands: the topmost parent when that is one, else null.
[[nodiscard]] TParentForm* GetParentForm(TControl* control);
/// The same for callers that can't do without; raises EInvalidOperation "Control '<name>' has no parent
/// window".
[[nodiscard]] TParentForm& ValidParentForm(TControl* control);

}  // namespace vcl
