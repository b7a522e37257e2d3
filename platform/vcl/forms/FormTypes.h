#pragma once

#include <span>

#include "platform/vcl/controls/ControlTypes.h"

namespace vcl {

enum class TBorderIcon { biSystemMenu, biMinimize, biMaximize, biHelp };
using TBorderIcons = TSet<TBorderIcon>;
/// An ordinary form, or one that stays above all others.
enum class TFormStyle { fsNormal, fsStayOnTop };
/// Where and how large a form is when it is first shown: as its properties say, as the system chooses, or in
/// the middle of something.
enum class TPosition {
    poDesigned,
    poDefault,
    poDefaultPosOnly,
    poDefaultSizeOnly,
    poScreenCenter,
    poDesktopCenter,
    poMainFormCenter,
    poOwnerFormCenter
};
enum class TWindowState { wsNormal, wsMinimized, wsMaximized };
/// What closing does to a form: nothing, hide it, free it, minimise it.
enum class TCloseAction { caNone, caHide, caFree, caMinimize };
/// The window above which a form always lies: the main form's, the active form's, or that of `PopupParent`.
enum class TPopupMode { pmNone, pmAuto, pmExplicit };
enum class TFormStateFlag {
    fsShowing,    ///< On its way to being shown or hidden.
    fsModal,      ///< Runs a modal loop.
    fsActivated,  ///< `OnActivate` was raised and not yet `OnDeactivate`.
};
using TFormState = TSet<TFormStateFlag>;

using enum TBorderIcon;
using enum TFormStyle;
using enum TPosition;
using enum TWindowState;
using enum TCloseAction;
using enum TPopupMode;
using enum TFormStateFlag;

template <>
struct TEnumNames<TBorderIcon> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TFormStyle> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TPosition> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TWindowState> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TPopupMode> {
    static std::span<const wchar_t* const> Names();
};

/// The handler may choose another action.
using TCloseEvent = TEvent<void(TObject*, TCloseAction&)>;
/// The handler refuses the closing with false.
using TCloseQueryEvent = TEvent<void(TObject*, bool&)>;
/// A key message that no control wanted; the handler sets true when it used it.
using TShortCutEvent = TEvent<void(TMessage&, bool&)>;

}  // namespace vcl
