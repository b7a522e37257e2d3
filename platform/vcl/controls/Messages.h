#pragma once

#include "platform/vcl/core/WindowsApi.h"

#include "platform/vcl/core/Geometry.h"

namespace vcl {

/// A message on its way through a control: the system's, or one of the framework's (CM_, CN_). Handlers write
/// `Result`.
struct TMessage {
    UINT Msg = 0;
    WPARAM WParam = 0;
    LPARAM LParam = 0;
    LRESULT Result = 0;

    /// Low and high half of the parameters, as mouse and command messages pack them.
    [[nodiscard]] WORD WParamLo() const { return LOWORD(WParam); }
    [[nodiscard]] WORD WParamHi() const { return HIWORD(WParam); }
    /// The point in the LParam (client or screen pixels, by message); negative coordinates are kept.
    [[nodiscard]] TPoint Pos() const {
        return {static_cast<short>(LOWORD(LParam)), static_cast<short>(HIWORD(LParam))};
    }
    /// Bits of MK_ in a mouse message.
    [[nodiscard]] WORD Keys() const { return LOWORD(WParam); }
    /// Virtual key (key messages) or UTF-16 unit (character messages).
    [[nodiscard]] WORD CharCode() const { return static_cast<WORD>(WParam); }
    /// Repeat count and flags of a key message.
    [[nodiscard]] LPARAM KeyData() const { return LParam; }
    /// Rotation of a wheel message in units of WHEEL_DELTA / 120; positive is away from the user.
    [[nodiscard]] short WheelDelta() const { return static_cast<short>(HIWORD(WParam)); }
    /// The LParam as a pointer to the message's structure.
    template <class T>
    [[nodiscard]] T* As() const {
        return reinterpret_cast<T*>(LParam);
    }
    /// The LParam that packs a point.
    [[nodiscard]] static LPARAM PackPoint(TPoint p) {
        return MAKELPARAM(static_cast<WORD>(p.X), static_cast<WORD>(p.Y));
    }
};

/// First of the framework's own messages. They are sent with `TControl::Perform`, seldom through a window.
inline constexpr UINT CM_BASE = 0xB000;
inline constexpr UINT CM_CLROFFSET = 0;
inline constexpr UINT CM_ACTIVATE = CM_BASE + 0;    ///< A form became the active one.
inline constexpr UINT CM_DEACTIVATE = CM_BASE + 1;  ///< A form stopped being the active one.
inline constexpr UINT CM_GOTFOCUS = CM_BASE + 2;    ///< Reserved.
inline constexpr UINT CM_LOSTFOCUS = CM_BASE + 3;   ///< Reserved.
inline constexpr UINT CM_CANCELMODE =
    CM_BASE + 4;  ///< LParam: TControl* that was clicked; others close what is open.
inline constexpr UINT CM_DIALOGKEY = CM_BASE + 5;   ///< Key message for the whole form; Result 1: used.
inline constexpr UINT CM_DIALOGCHAR = CM_BASE + 6;  ///< Accelerator for the whole form; Result 1: used.
inline constexpr UINT CM_FOCUSCHANGED =
    CM_BASE + 7;  ///< LParam: TWinControl* with the focus; to all controls of a form.
inline constexpr UINT CM_PARENTFONTCHANGED = CM_BASE + 8;
inline constexpr UINT CM_PARENTCOLORCHANGED = CM_BASE + 9;
inline constexpr UINT CM_HITTEST =
    CM_BASE + 10;  ///< LParam: point in client pixels; Result 0: the control is not there.
inline constexpr UINT CM_VISIBLECHANGED = CM_BASE + 11;  ///< WParam: the new value.
inline constexpr UINT CM_ENABLEDCHANGED = CM_BASE + 12;
inline constexpr UINT CM_COLORCHANGED = CM_BASE + 13;
inline constexpr UINT CM_FONTCHANGED = CM_BASE + 14;
inline constexpr UINT CM_CURSORCHANGED = CM_BASE + 15;
inline constexpr UINT CM_CTL3DCHANGED = CM_BASE + 16;
inline constexpr UINT CM_PARENTCTL3DCHANGED = CM_BASE + 17;
inline constexpr UINT CM_TEXTCHANGED = CM_BASE + 18;
inline constexpr UINT CM_MOUSEENTER =
    CM_BASE + 19;  ///< LParam: 0 for the control itself, else the TControl* entered below it.
inline constexpr UINT CM_MOUSELEAVE = CM_BASE + 20;  ///< LParam: like CM_MOUSEENTER.
inline constexpr UINT CM_MENUCHANGED = CM_BASE + 21;
inline constexpr UINT CM_APPKEYDOWN =
    CM_BASE + 22;  ///< Key message offered to the application (menu short cuts).
inline constexpr UINT CM_APPSYSCOMMAND =
    CM_BASE +
    23;  ///< WParam, LParam: of WM_SYSCOMMAND SC_KEYMENU; to all controls of a form. Result 1: used.
inline constexpr UINT CM_BUTTONPRESSED =
    CM_BASE + 24;  ///< WParam: group index, LParam: the button that went down.
inline constexpr UINT CM_SHOWINGCHANGED = CM_BASE + 25;  ///< The window has to be shown or hidden.
inline constexpr UINT CM_ENTER = CM_BASE + 26;  ///< The focus came into the control or a child of it.
inline constexpr UINT CM_EXIT = CM_BASE + 27;   ///< The focus leaves the control and all its children.
inline constexpr UINT CM_DESIGNHITTEST =
    CM_BASE + 28;  ///< Mouse message; Result 1: the control handles it at design time.
inline constexpr UINT CM_ICONCHANGED = CM_BASE + 29;
inline constexpr UINT CM_WANTSPECIALKEY =
    CM_BASE + 30;  ///< WParam: virtual key; Result 1: no dialog key for the form.
inline constexpr UINT CM_INVOKEHELP = CM_BASE + 31;
inline constexpr UINT CM_WINDOWHOOK = CM_BASE + 32;
inline constexpr UINT CM_RELEASE = CM_BASE + 33;  ///< Posted: the form frees itself.
inline constexpr UINT CM_SHOWHINTCHANGED = CM_BASE + 34;
inline constexpr UINT CM_PARENTSHOWHINTCHANGED = CM_BASE + 35;
inline constexpr UINT CM_SYSCOLORCHANGE = CM_BASE + 36;  ///< WM_SYSCOLORCHANGE, handed on to the children.
inline constexpr UINT CM_WININICHANGE = CM_BASE + 37;
inline constexpr UINT CM_FONTCHANGE = CM_BASE + 38;
inline constexpr UINT CM_TIMECHANGE = CM_BASE + 39;
inline constexpr UINT CM_TABSTOPCHANGED = CM_BASE + 40;
inline constexpr UINT CM_UIACTIVATE = CM_BASE + 41;
inline constexpr UINT CM_UIDEACTIVATE = CM_BASE + 42;
inline constexpr UINT CM_DOCWINDOWACTIVATE = CM_BASE + 43;
inline constexpr UINT CM_CONTROLLISTCHANGE =
    CM_BASE + 44;  ///< WParam: TControl*, LParam: 1 inserting, 0 removed; goes up the tree.
inline constexpr UINT CM_GETDATALINK = CM_BASE + 45;
inline constexpr UINT CM_CHILDKEY =
    CM_BASE + 46;  ///< WParam: virtual key, LParam: TWinControl* with the focus; Result 1: used.
inline constexpr UINT CM_DRAG =
    CM_BASE + 47;  ///< To the window under the pointer. WParam: TDragMessage, LParam: TDragRec*.
inline constexpr UINT CM_HINTSHOW = CM_BASE + 48;  ///< LParam: THintInfo*; Result other than 0: no hint.
inline constexpr UINT CM_DIALOGHANDLE = CM_BASE + 49;
inline constexpr UINT CM_ISTOOLCONTROL = CM_BASE + 50;
inline constexpr UINT CM_RECREATEWND = CM_BASE + 51;  ///< Makes the window anew with fresh parameters.
inline constexpr UINT CM_INVALIDATE = CM_BASE + 52;  ///< WParam 1: sent up the tree for a child that changed.
inline constexpr UINT CM_SYSFONTCHANGED = CM_BASE + 53;
inline constexpr UINT CM_CONTROLCHANGE =
    CM_BASE + 54;  ///< WParam: TControl*, LParam: 1 inserted, 0 removing; to the parent only.
inline constexpr UINT CM_CHANGED = CM_BASE + 55;  ///< LParam: the TControl* whose content the user changed.
inline constexpr UINT CM_DOCKCLIENT = CM_BASE + 56;
inline constexpr UINT CM_UNDOCKCLIENT = CM_BASE + 57;
inline constexpr UINT CM_FLOAT = CM_BASE + 58;
inline constexpr UINT CM_BORDERCHANGED = CM_BASE + 59;
inline constexpr UINT CM_BIDIMODECHANGED = CM_BASE + 60;
inline constexpr UINT CM_PARENTBIDIMODECHANGED = CM_BASE + 61;
inline constexpr UINT CM_ALLCHILDRENFLIPPED = CM_BASE + 62;
inline constexpr UINT CM_ACTIONUPDATE = CM_BASE + 63;   ///< LParam: TBasicAction*; Result 1: updated.
inline constexpr UINT CM_ACTIONEXECUTE = CM_BASE + 64;  ///< LParam: TBasicAction*; Result 1: executed.
inline constexpr UINT CM_HINTSHOWPAUSE =
    CM_BASE + 65;  ///< WParam: 1 when a hint was shown last, LParam: int* of milliseconds.
inline constexpr UINT CM_DOCKNOTIFICATION = CM_BASE + 66;
inline constexpr UINT CM_MOUSEWHEEL =
    CM_BASE + 67;  ///< Like WM_MOUSEWHEEL, the keys as bits of TShiftState; Result 1: used.
inline constexpr UINT CM_ISSHORTCUT =
    CM_BASE + 68;  ///< Key message; Result 1: it is a short cut of the form.
inline constexpr UINT CM_UPDATEACTIONS = CM_BASE + 69;
inline constexpr UINT CM_MOUSEACTIVATE = CM_BASE + 76;
inline constexpr UINT CM_PARENTDOUBLEBUFFEREDCHANGED = CM_BASE + 80;
inline constexpr UINT CM_DOUBLEBUFFEREDCHANGED = CM_BASE + 81;
inline constexpr UINT CM_DEFERREDFREE =
    CM_BASE + 110;  ///< Posted: the control's owner asked to free it once no message is under way.

/// First of the notifications that a parent window reflects to the control they are about: CN_BASE plus the
/// system's message.
inline constexpr UINT CN_BASE = 0xBC00;
inline constexpr UINT CN_CHARTOITEM = CN_BASE + WM_CHARTOITEM;
inline constexpr UINT CN_COMMAND = CN_BASE + WM_COMMAND;
inline constexpr UINT CN_COMPAREITEM = CN_BASE + WM_COMPAREITEM;
inline constexpr UINT CN_CTLCOLORBTN = CN_BASE + WM_CTLCOLORBTN;
inline constexpr UINT CN_CTLCOLORDLG = CN_BASE + WM_CTLCOLORDLG;
inline constexpr UINT CN_CTLCOLOREDIT = CN_BASE + WM_CTLCOLOREDIT;
inline constexpr UINT CN_CTLCOLORLISTBOX = CN_BASE + WM_CTLCOLORLISTBOX;
inline constexpr UINT CN_CTLCOLORMSGBOX = CN_BASE + WM_CTLCOLORMSGBOX;
inline constexpr UINT CN_CTLCOLORSCROLLBAR = CN_BASE + WM_CTLCOLORSCROLLBAR;
inline constexpr UINT CN_CTLCOLORSTATIC = CN_BASE + WM_CTLCOLORSTATIC;
inline constexpr UINT CN_DELETEITEM = CN_BASE + WM_DELETEITEM;
inline constexpr UINT CN_DRAWITEM = CN_BASE + WM_DRAWITEM;
inline constexpr UINT CN_HSCROLL = CN_BASE + WM_HSCROLL;
inline constexpr UINT CN_MEASUREITEM = CN_BASE + WM_MEASUREITEM;
inline constexpr UINT CN_PARENTNOTIFY = CN_BASE + WM_PARENTNOTIFY;
inline constexpr UINT CN_VKEYTOITEM = CN_BASE + WM_VKEYTOITEM;
inline constexpr UINT CN_VSCROLL = CN_BASE + WM_VSCROLL;
inline constexpr UINT CN_KEYDOWN = CN_BASE + WM_KEYDOWN;
inline constexpr UINT CN_KEYUP = CN_BASE + WM_KEYUP;
inline constexpr UINT CN_CHAR = CN_BASE + WM_CHAR;
inline constexpr UINT CN_SYSKEYDOWN = CN_BASE + WM_SYSKEYDOWN;
inline constexpr UINT CN_SYSCHAR = CN_BASE + WM_SYSCHAR;
inline constexpr UINT CN_NOTIFY = CN_BASE + WM_NOTIFY;

}  // namespace vcl
