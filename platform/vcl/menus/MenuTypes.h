#pragma once

#include <span>

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/core/Sets.h"

namespace vcl {

class TCanvas;
class TMenuItem;

/// Where an item stands: below the one before, at the top of a new column, or there behind a line.
enum class TMenuBreak { mbNone, mbBreak, mbBarBreak };
/// Whether hot keys or separators are put in order by themselves; maParent: as the item's parent does. For a
/// menu as a whole, which has no parent, maParent counts as maAutomatic.
enum class TMenuItemAutoFlag { maAutomatic, maManual, maParent };
using TMenuAutoFlag = TMenuItemAutoFlag;
/// How a popup menu lies to its point.
enum class TPopupAlignment { paLeft, paRight, paCenter };
/// Which mouse buttons choose an item of a popup menu: the right one as well as the left, or the left alone.
enum class TTrackButton { tbRightButton, tbLeftButton };
/// How popup menus appear, on systems that show it.
enum class TMenuAnimation { maLeftToRight, maRightToLeft, maTopToBottom, maBottomToTop, maNone };
using TMenuAnimations = TSet<TMenuAnimation>;
/// What `TMenu::FindItem` looks for.
enum class TFindItemKind { fkCommand, fkHandle, fkShortCut };
/// How an item that draws itself has to look.
enum class TOwnerDrawStateFlag {
    odSelected,
    odGrayed,
    odDisabled,
    odChecked,
    odFocused,
    odDefault,
    odHotLight,
    odInactive,
    odNoAccel,  ///< The mnemonics are not underlined.
    odNoFocusRect
};
using TOwnerDrawState = TSet<TOwnerDrawStateFlag>;

using enum TMenuBreak;
using enum TMenuItemAutoFlag;
using enum TPopupAlignment;
using enum TTrackButton;
using enum TMenuAnimation;
using enum TFindItemKind;
using enum TOwnerDrawStateFlag;

/// Sender, canvas, place of the item, and whether it is highlighted.
using TMenuDrawItemEvent = TEvent<void(TObject*, TCanvas&, const TRect&, bool)>;
/// Sender, canvas, place and state of the item.
using TAdvancedMenuDrawItemEvent = TEvent<void(TObject*, TCanvas&, const TRect&, TOwnerDrawState)>;
/// Sender, canvas, and the width and height in pixels to be changed.
using TMenuMeasureItemEvent = TEvent<void(TObject*, TCanvas&, int&, int&)>;
/// The menu, the item that changed (null: all), and whether items came or went.
using TMenuChangeEvent = TEvent<void(TObject*, TMenuItem*, bool)>;

template <>
struct TEnumNames<TMenuBreak> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TMenuItemAutoFlag> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TPopupAlignment> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TTrackButton> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TMenuAnimation> {
    static std::span<const wchar_t* const> Names();
};

}  // namespace vcl
