#include "skin/masking/MaskingPanel.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Regions.h"
#include "skin/masking/MaskPanel.h"
#include "skin/utils/BitmapRegion.h"

namespace qv7skin {

const TMetaClass& TCustomMaskingPanel::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomMaskingPanel>(L"TCustomMaskingPanel", TComponent::StaticClass())
            .Property(L"Masked", &TCustomMaskingPanel::GetMasked, &TCustomMaskingPanel::SetMasked, false)
            .Field(L"Control", &TCustomMaskingPanel::Control)
            .Field(L"TransparentColor", &TCustomMaskingPanel::TransparentColor, TColor{0x00FF00FF})
            .Identifiers(ColorIdentifiers());
    return meta;
}

TCustomMaskingPanel::TCustomMaskingPanel(TComponent* AOwner) : TComponent(AOwner) {}

TCustomMaskingPanel::~TCustomMaskingPanel() {
    TCustomMaskingPanel::Unmask();
}

void TCustomMaskingPanel::SetMasked(bool Value) {
    FMaskWhenLoaded = Value && IsInState(csLoading);
    if (Value && !GetMasked())
        Mask();
    else if (!Value && GetMasked())
        Unmask();
}

void TCustomMaskingPanel::Loaded() {
    TComponent::Loaded();
    if (Control) Control->FreeNotification(this);
    if (FMaskWhenLoaded) SetMasked(true);
}

void TCustomMaskingPanel::Mask() {
    if (FMaskPanel || !Control) return;
    Control->FreeNotification(this);
    FMaskPanel = new TMaskPanel(nullptr);
    FMaskPanel->FreeNotification(this);
    try {
        FMaskPanel->Hide();
        FMaskPanel->SetParent(Control);
        FMaskPanel->SetParentColor(true);  // where no picture covers it, it is a part of the control
        FMaskPanel->SetBevelOuter(bvNone);
        FMaskPanel->SetAlign(alClient);
        ApplyMask(*CreateMask(GetMaskSize()));
        if (!FMaskPanel) return;
        FMaskPanel->Show();
        FMaskPanel->BringToFront();
    } catch (...) {
        TCustomMaskingPanel::Unmask();
        throw;
    }
}

void TCustomMaskingPanel::Unmask() {
    if (FMaskPanel) FMaskPanel->Free();  // `Notification` clears the reference
}

void TCustomMaskingPanel::ApplyMask(const TBitmap& Bitmap) {
    if (!FMaskPanel) return;
    TRegionHandle shape = BitmapToRegion(&Bitmap, TransparentColor, false);
    // A control without area has a mask without pixels: nothing of the panel may show when the control grows.
    if (!shape) shape = RectRegion({});
    FMaskPanel->SetShape(std::move(shape));
}

TFlickerFreePanel* TCustomMaskingPanel::GetMaskPanel() const {
    return FMaskPanel;
}

TSize TCustomMaskingPanel::GetMaskSize() const {
    return {Control->GetClientWidth(), Control->GetClientHeight()};
}

void TCustomMaskingPanel::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation != opRemove) return;
    if (component == FMaskPanel) FMaskPanel = nullptr;
    if (component == Control) Control = nullptr;
}

}  // namespace qv7skin
