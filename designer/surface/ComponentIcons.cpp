#include "designer/surface/ComponentIcons.h"

#include <set>

#include "designer/model/Placing.h"
#include "designer/palette/PaletteIcons.h"
#include "platform/vcl/graphics/Brush.h"
#include "platform/vcl/graphics/Pen.h"
#include "platform/vcl/streaming/UnknownComponent.h"
#include "skin/UnitQV7SkinColors.h"

namespace designer {

class TComponentIcons::TIconWindow final : public TOverlay {
public:
    TIconWindow(HWND formWindow, const TMetaClass& classType)
        : TOverlay(formWindow, GetQV7SkinColorCaption(), GetQV7SkinColorBackground()), FClass(classType) {}

protected:
    void Paint() override {
        TOverlay::Paint();
        constexpr int margin = (ComponentIconSize - PaletteIconSize) / 2;
        DrawPaletteIcon(GetCanvas(), margin, margin, FClass);
    }

private:
    const TMetaClass& FClass;
};

TComponentIcons::TComponentIcons() = default;
TComponentIcons::~TComponentIcons() = default;

bool TComponentIcons::IsShownByIcon(const TComponent& component) {
    // Parts of other components, such as the items of a menu, are seen in those.
    return !dynamic_cast<const TControl*>(&component) &&
           (!component.HasParent() || dynamic_cast<const TUnknownComponent*>(&component));
}

TRect TComponentIcons::PlaceOf(const TComponent& component) {
    const TPoint corner = DesignPlace(component);
    return TRect::OfSize(corner.X, corner.Y, ComponentIconSize, ComponentIconSize);
}

void TComponentIcons::Show(const TDesignRoot& root) {
    std::set<const TComponent*> shown;
    for (int i = 0; i < root.GetComponentCount(); ++i) {
        const TComponent& component = *root.GetComponent(i);
        if (!IsShownByIcon(component)) continue;
        shown.insert(&component);
        std::unique_ptr<TIconWindow>& icon = FIcons[&component];
        if (!icon) icon = std::make_unique<TIconWindow>(root.WindowHandle(), component.ClassType());
        icon->ShowAt(PlaceOf(component));
    }
    std::erase_if(FIcons, [&](const auto& entry) { return !shown.contains(entry.first); });
}

TOverlay* TComponentIcons::Find(const TComponent& component) const {
    const auto found = FIcons.find(&component);
    return found == FIcons.end() ? nullptr : found->second.get();
}

void TComponentIcons::Clear() {
    FIcons.clear();
}

}  // namespace designer
