#include "header/chevrons/HeaderChevron.h"
#include "header/control/HeaderControl.h"

namespace qv7skin {

TQV7SkinHeaderChevronBase* TQV7SkinHeaderControl::CreateChevron() {
    return new TQV7SkinHeaderChevron(this);
}

TQV7SkinHeaderChevronBase& TQV7SkinHeaderControl::GetChevron() {
    if (!FChevron) {
        FChevron = CreateChevron();
        FChevron->SetVisible(false);
        FChevron->SetParent(this);
    }
    return *FChevron;
}

bool TQV7SkinHeaderControl::GetChevronVisible() const {
    return FChevron && FChevron->GetVisible();
}

void TQV7SkinHeaderControl::DrawChevron() {
    if (!AreWiderThan(GetClippedWidth(), 0)) {
        if (FChevron) FChevron->SetVisible(false);
        return;
    }
    TQV7SkinHeaderChevronBase& chevron = GetChevron();
    chevron.SetBounds(GetWidth() - chevron.GetWidth(), 0, chevron.GetWidth(), chevron.GetHeight());
    chevron.SetVisible(true);
    if (WinControls().back() != &chevron) chevron.BringToFront();
    chevron.Repaint();
}

}  // namespace qv7skin
