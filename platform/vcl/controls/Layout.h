#pragma once

#include <vector>

#include "platform/vcl/controls/ControlTypes.h"

namespace vcl {

class TControl;
class TWinControl;

/// One round of laying out the children of a parent: first top, bottom, left and right aligned ones, each at
/// the remaining rectangle's edge, then those that fill the rest, then those that only keep their anchors.
class TControlLayout {
public:
    /// `changed` is the child that caused the round (may be null): among children of one alignment it comes
    /// first where places are equal. `rect` is the area, and afterwards what is left of it.
    TControlLayout(TWinControl& parent, TControl* changed, TRect& rect)
        : FParent(parent), FChanged(changed), FRect(rect) {}
    void Run();

private:
    [[nodiscard]] bool IsNeeded() const;
    [[nodiscard]] bool TakesPart(const TControl& control) const;
    [[nodiscard]] std::vector<TControl*> InOrder(TAlign align) const;
    [[nodiscard]] static bool ComesBefore(const TControl& a, const TControl& b, TAlign align);
    void Place(TAlign align);
    [[nodiscard]] TRect AlignedBounds(const TControl& control, TAlign align) const;
    void PlaceAligned(TControl& control, TAlign align);
    void TakeAway(TControl& control, TAlign align);
    void PlaceCustom(TControl& control);
    void KeepAnchors(TControl& control);
    void SetBounds(TControl& control, const TRect& bounds);

    TWinControl& FParent;
    TControl* FChanged;
    TRect& FRect;
    bool FStopped = false;
};

}  // namespace vcl
