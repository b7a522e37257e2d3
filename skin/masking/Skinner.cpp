#include "skin/masking/Skinner.h"

#include <utility>

#include "skin/masking/MaskPanel.h"
#include "skin/masking/MaskingPanelImagesFromResource.h"
#include "skin/utils/BitmapRegion.h"

namespace qv7skin {

/// The masking panel of a skinner. It knows the skinned control and the panel, and hears when either is
/// freed.
class TSkinner::TFrame final : public TMaskingPanelImagesFromResource {
public:
    explicit TFrame(TControl* control) : TMaskingPanelImagesFromResource(nullptr), FSkinned(control) {
        FPanel = new TMaskPanel(nullptr);
        FPanel->FreeNotification(this);
        FPanel->SetBevelOuter(bvNone);  // the frame reaches to the panel's edge
        Control = FPanel;
        if (!FSkinned) return;
        FSkinned->FreeNotification(this);
        FPanel->SetParent(FSkinned->GetParent());
        FPanel->BringToFront();
    }
    ~TFrame() override {
        Unmask();
        if (FPanel) FPanel->Free();
    }

    void FollowControl() {
        if (!FSkinned || !FPanel) return;
        FPanel->SetBounds(FSkinned->GetLeft() - 3, FSkinned->GetTop() - 2, FSkinned->GetWidth() + 3,
                          FSkinned->GetHeight() + 2);
        Unmask();
        Mask();
    }

    /// The panel itself gets the frame's shape too, or it would cover the control.
    void ApplyMask(const TBitmap& Bitmap) override {
        TMaskingPanelImagesFromResource::ApplyMask(Bitmap);
        if (TRegionHandle shape = BitmapToRegion(&Bitmap, TransparentColor, false); shape && FPanel)
            FPanel->SetShape(std::move(shape));
    }

    [[nodiscard]] TMaskPanel* Panel() const { return FPanel; }

protected:
    void Notification(TComponent* component, TOperation operation) override {
        TMaskingPanelImagesFromResource::Notification(component, operation);
        if (operation != opRemove) return;
        if (component == FPanel) FPanel = nullptr;
        if (component == FSkinned) FSkinned = nullptr;
    }

private:
    TControl* FSkinned;
    TMaskPanel* FPanel;
};

TSkinner::TSkinner(TControl* Control) : FFrame(std::make_unique<TFrame>(Control)) {}

TSkinner::~TSkinner() = default;

void TSkinner::Resize() {
    FFrame->FollowControl();
}

TWinControl* TSkinner::GetPanel() const {
    return FFrame->Panel();
}

TMaskingPanelImagesFromResource& TSkinner::GetMaskingPanel() const {
    return *FFrame;
}

}  // namespace qv7skin
