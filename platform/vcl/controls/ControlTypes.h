#pragma once

#include "platform/vcl/core/WindowsApi.h"

#include <span>

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/Sets.h"
#include "platform/vcl/core/Strings.h"

namespace vcl {

class TControl;
struct TMessage;

/// The edge of the parent that a control keeps to, or the rest that the others leave (alClient).
enum class TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom };
/// The edges of the parent to which a control keeps its distance when the parent is resized.
enum class TAnchorKind { akLeft, akTop, akRight, akBottom };
using TAnchors = TSet<TAnchorKind>;

enum class TMouseButton { mbLeft, mbRight, mbMiddle };
enum class TMouseActivate { maDefault, maActivate, maActivateAndEat, maNoActivate, maNoActivateAndEat };
/// Keys and buttons that are down during an input event.
enum class TShiftKey { ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle, ssDouble };
using TShiftState = TSet<TShiftKey>;

enum class TControlStyleFlag {
    csAcceptsControls,    ///< A designer may put controls on it.
    csCaptureMouse,       ///< A press of the left button captures the mouse.
    csDesignInteractive,  ///< Right clicks act as left clicks at design time.
    csClickEvents,        ///< Press and release on the control make a click.
    csFramed,             ///< Has a 3D frame when Ctl3D is on.
    csSetCaption,         ///< The caption follows the name until it is set.
    csOpaque,        ///< Paints every pixel of its area: nothing is erased first, and it can paint at once.
    csDoubleClicks,  ///< The second press makes a double click instead of a click.
    csFixedWidth,
    csFixedHeight,
    csNoDesignVisible,   ///< Invisible at design time when `Visible` is off.
    csReplicatable,      ///< `PaintTo` draws all of it.
    csNoStdEvents,       ///< Mouse, key and click events of the standard set are not raised.
    csDisplayDragImage,  ///< Drag images show over it.
    csReflector,
    csActionClient,  ///< Linked to an action.
    csMenuEvents,    ///< Answers the system's menu messages.
    csNeedsBorderPaint,
    csParentBackground,  ///< Lets its parent paint the background.
};
using TControlStyle = TSet<TControlStyleFlag>;

enum class TControlStateFlag {
    csLButtonDown,  ///< The left button went down on the control and was not released.
    csClicked,      ///< The press may still become a click.
    csPalette,
    csReadingState,      ///< Being read from a form file.
    csAlignmentNeeded,   ///< Must be laid out when `EnableAlign` ends the last bracket.
    csFocusing,          ///< On its way to the focus.
    csCreating,          ///< The window is being made.
    csPaintCopy,         ///< Being painted into somebody else's surface.
    csCustomPaint,       ///< Painted by the framework rather than by the window's own class.
    csDestroyingHandle,  ///< The window is being destroyed.
    csDesignerHide,
    csRecreating,  ///< The window is being destroyed only to be made anew.
};
using TControlState = TSet<TControlStateFlag>;

enum class TBevelCut { bvNone, bvLowered, bvRaised, bvSpace };
enum class TBevelKind { bkNone, bkTile, bkSoft, bkFlat };
enum class TBevelEdge { beLeft, beTop, beRight, beBottom };
using TBevelEdges = TSet<TBevelEdge>;
using TBevelWidth = int;
using TBorderWidth = int;
enum class TFormBorderStyle { bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin };
/// The two border styles of controls: bsNone and bsSingle.
using TBorderStyle = TFormBorderStyle;

using enum TAlign;
using enum TAnchorKind;
using enum TMouseButton;
using enum TMouseActivate;
using enum TShiftKey;
using enum TControlStyleFlag;
using enum TControlStateFlag;
using enum TBevelCut;
using enum TBevelKind;
using enum TBevelEdge;
using enum TFormBorderStyle;

/// The place in the parent's tab order; -1 without a parent or for the end.
using TTabOrder = int;

/// A cursor by number; `AppServices().CursorHandle` knows the handles. Applications add positive numbers.
using TCursor = int;
inline constexpr TCursor crDefault = 0;
inline constexpr TCursor crNone = -1;
inline constexpr TCursor crArrow = -2;
inline constexpr TCursor crCross = -3;
inline constexpr TCursor crIBeam = -4;
inline constexpr TCursor crSizeNESW = -6;
inline constexpr TCursor crSizeNS = -7;
inline constexpr TCursor crSizeNWSE = -8;
inline constexpr TCursor crSizeWE = -9;
inline constexpr TCursor crUpArrow = -10;
inline constexpr TCursor crHourGlass = -11;
inline constexpr TCursor crDrag = -12;
inline constexpr TCursor crNoDrop = -13;
inline constexpr TCursor crHSplit = -14;
inline constexpr TCursor crVSplit = -15;
inline constexpr TCursor crMultiDrag = -16;
inline constexpr TCursor crSQLWait = -17;
inline constexpr TCursor crNo = -18;
inline constexpr TCursor crAppStart = -19;
inline constexpr TCursor crHelp = -20;
inline constexpr TCursor crHandPoint = -21;
inline constexpr TCursor crSizeAll = -22;

/// The cursor numbers with names of their own, for form files.
[[nodiscard]] std::span<const TIdentifier> CursorIdentifiers();

/// How a modal form was closed; 0 while it is open.
using TModalResult = int;
inline constexpr TModalResult mrNone = 0;
inline constexpr TModalResult mrOk = 1;
inline constexpr TModalResult mrCancel = 2;
inline constexpr TModalResult mrAbort = 3;
inline constexpr TModalResult mrRetry = 4;
inline constexpr TModalResult mrIgnore = 5;
inline constexpr TModalResult mrYes = 6;
inline constexpr TModalResult mrNo = 7;
inline constexpr TModalResult mrClose = 8;
inline constexpr TModalResult mrHelp = 9;
inline constexpr TModalResult mrTryAgain = 10;
inline constexpr TModalResult mrContinue = 11;
inline constexpr TModalResult mrAll = 12;
inline constexpr TModalResult mrNoToAll = 13;
inline constexpr TModalResult mrYesToAll = 14;

/// The modal results with names of their own, for form files.
[[nodiscard]] std::span<const TIdentifier> ModalResultIdentifiers();

/// Sender, button, keys, X and Y in client pixels.
using TMouseEvent = TEvent<void(TObject*, TMouseButton, TShiftState, int, int)>;
using TMouseMoveEvent = TEvent<void(TObject*, TShiftState, int, int)>;
/// Sender, the control under the press, button, keys, X, Y, and the answer to change.
using TMouseActivateEvent =
    TEvent<void(TObject*, TMouseButton, TShiftState, int, int, UINT, TMouseActivate&)>;
/// The handler sets the virtual key to 0 to swallow it.
using TKeyEvent = TEvent<void(TObject*, WORD&, TShiftState)>;
/// The handler sets the character to 0 to swallow it.
using TKeyPressEvent = TEvent<void(TObject*, wchar_t&)>;
/// Sender, keys, rotation in 1/120 notches, the pointer in screen pixels, and whether the handler used it.
using TMouseWheelEvent = TEvent<void(TObject*, TShiftState, int, TPoint, bool&)>;
using TMouseWheelUpDownEvent = TEvent<void(TObject*, TShiftState, TPoint, bool&)>;
/// Sender, the size to change or refuse in pixels.
using TCanResizeEvent = TEvent<void(TObject*, int&, int&, bool&)>;
/// Sender and the least and greatest width and height in pixels, to be narrowed (0: free).
using TConstrainedResizeEvent = TEvent<void(TObject*, int&, int&, int&, int&)>;
/// Sender, place in client pixels ((-1, -1) from the keyboard), and whether the handler showed something.
using TContextPopupEvent = TEvent<void(TObject*, TPoint, bool&)>;
/// A substitute window procedure.
using TWndMethod = TEvent<void(TMessage&)>;

/// Keys that are down, from the bits of a mouse message (MK_) and the keyboard's state for Alt.
[[nodiscard]] TShiftState KeysToShiftState(WORD keys);
/// Keys that are down, from the data of a key message (for Alt) and the keyboard's state.
[[nodiscard]] TShiftState KeyDataToShiftState(LPARAM keyData);
/// Keys and buttons that are down in the thread's keyboard state.
[[nodiscard]] TShiftState KeyboardShiftState();
/// True when the character, without regard to case, is the one after a single '&' in the caption.
[[nodiscard]] bool IsAccel(wchar_t character, StringView caption);

template <>
struct TEnumNames<TAlign> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TAnchorKind> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TMouseButton> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TShiftKey> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TBevelCut> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TBevelKind> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TBevelEdge> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TFormBorderStyle> {
    static std::span<const wchar_t* const> Names();
};

}  // namespace vcl
