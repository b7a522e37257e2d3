#pragma once

#include <span>
#include <utility>
#include <vector>

#include "designer/model/DesignDocument.h"
#include "platform/vcl/controls/WinControl.h"

namespace designer {

// Edits of the place and size of what is chosen. The first component chosen leads: the others take its edge
// or size and it stays.

/// Where a component stands in its parent's client pixels; a component that is no control has no size.
[[nodiscard]] TRect PlaceOf(const TComponent& component);
void SetPlaceOf(TComponent& component, const TRect& place);

/// Moves all that is chosen, without those that stand in another chosen one and move with it.
void MoveSelection(TDesignDocument& document, int dx, int dy);
/// Makes the chosen controls larger or smaller, at least one pixel each way.
void GrowSelection(TDesignDocument& document, int dw, int dh);
/// Gives the components these places as one edit.
void SetPlaces(TDesignDocument& document, const String& label,
               std::span<const std::pair<TComponent*, TRect>> places);

enum class TAlignment {
    Left,
    HorizontalCenter,
    Right,
    Top,
    VerticalCenter,
    Bottom,
};
/// Aligns edges or centres with those of the leader.
void AlignSelection(TDesignDocument& document, TAlignment alignment);

enum class TDirection { Horizontal, Vertical };
/// Makes the gaps between three or more components equal; the outermost ones stay.
void DistributeSelection(TDesignDocument& document, TDirection direction);
/// Gives the others the leader's width (Horizontal) or height (Vertical).
void EqualizeSelection(TDesignDocument& document, TDirection direction);
/// Moves the chosen ones together into the middle of their parent.
void CenterSelection(TDesignDocument& document, TDirection direction);

/// Moves the chosen controls before or behind all others of their parents.
void BringSelectionToFront(TDesignDocument& document);
void SendSelectionToBack(TDesignDocument& document);

/// Gives the controls, children of one parent, the tab order in which they stand here.
void SetTabOrder(TDesignDocument& document, std::span<TWinControl* const> controls);

}  // namespace designer
