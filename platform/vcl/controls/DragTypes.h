#pragma once

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Geometry.h"
#include "platform/vcl/core/PublishedProperty.h"

namespace vcl {

class TControl;
class TDragObject;
class TObject;

/// dmAutomatic: a press of the left button begins a drag instead of a click.
enum class TDragMode { dmManual, dmAutomatic };
/// What dragging the control means. dkDock drags like dkDrag: windows are not docked here.
enum class TDragKind { dkDrag, dkDock };
/// How the pointer stands to the control that is asked whether it accepts: it came, left, or moved on it.
enum class TDragState { dsDragEnter, dsDragLeave, dsDragMove };

using enum TDragMode;
using enum TDragKind;
using enum TDragState;

/// Sender, what is dragged (see `TDragObject::GetSource`), X and Y in client pixels, and the answer; it
/// stands at true when the handler is called.
using TDragOverEvent = TEvent<void(TObject*, TObject*, int, int, TDragState, bool&)>;
/// Sender, what is dragged, X and Y in client pixels.
using TDragDropEvent = TEvent<void(TObject*, TObject*, int, int)>;
/// Sender, and the drag object: the handler may put one of its own there (null at first).
using TStartDragEvent = TEvent<void(TObject*, TDragObject*&)>;
/// Sender, the control that accepted the drop or null, and the pointer in its client pixels (screen pixels
/// without one).
using TEndDragEvent = TEvent<void(TObject*, TObject*, int, int)>;

/// The WParam of CM_DRAG.
enum class TDragMessage : unsigned {
    dmDragEnter,   ///< Result 1: accepted.
    dmDragLeave,   ///< Result 1: accepted; also asked right before a drop.
    dmDragMove,    ///< Result 1: accepted.
    dmDragDrop,    ///< The drop.
    dmFindTarget,  ///< Result: the TControl* at the position, of the window that got the message.
};
using enum TDragMessage;

/// The LParam of CM_DRAG.
struct TDragRec {
    TPoint Pos;  ///< Screen pixels.
    TDragObject* Source = nullptr;
    TControl* Target = nullptr;  ///< The control that it is about; null with dmFindTarget.
};

template <>
struct TEnumNames<TDragMode> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TDragKind> {
    static std::span<const wchar_t* const> Names();
};

}  // namespace vcl
