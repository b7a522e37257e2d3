#pragma once

#include <map>
#include <memory>

#include "designer/model/DesignRoot.h"
#include "designer/surface/Overlay.h"

namespace designer {

/// Edge length of an icon in pixels.
inline constexpr int ComponentIconSize = 28;

/// The icons of components that have no surface of their own, on the form under design.
class TComponentIcons {
public:
    TComponentIcons();
    ~TComponentIcons();

    /// Shows one for each such component at its place.
    void Show(const TDesignRoot& root);
    void Clear();
    /// The window of the component's icon; null when none is shown.
    [[nodiscard]] TOverlay* Find(const TComponent& component) const;
    /// Where the component's icon stands, in client pixels of the form.
    [[nodiscard]] static TRect PlaceOf(const TComponent& component);
    /// True for components that are shown by an icon.
    [[nodiscard]] static bool IsShownByIcon(const TComponent& component);

private:
    class TIconWindow;
    std::map<const TComponent*, std::unique_ptr<TIconWindow>> FIcons;
};

}  // namespace designer
