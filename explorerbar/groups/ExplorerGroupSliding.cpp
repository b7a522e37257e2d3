#include <algorithm>

#include "explorerbar/UnitQV7SkinExplorerBar.h"
#include "explorerbar/groups/ExplorerGroup.h"

namespace qv7skin {

void TQV7SkinExplorerGroup::OpenClose() {
    if (MeasuredItems() == 0) return;
    if (!FExBar || !FExBar->GetAnimate()) {
        StopSlide(IsClosed() ? egsOpen : egsClosed);
    } else {
        switch (FState) {
            case egsOpen:
                FBodyHeight = FFullHeight;
                StartSlide(false);
                break;
            case egsClosed:
                FBodyHeight = 0;
                StartSlide(true);
                break;
            case egsOpening:
                FState = egsClosing;
                break;
            case egsClosing:
                FState = egsOpening;
                break;
        }
        FTargetHeight = FState == egsOpening ? FFullHeight : 0;
        FBodyHeight = std::min(FBodyHeight, FFullHeight);
    }
    if (FExBar) FExBar->GroupSlid();
}

/// The steps of a slide add up to the body: closing takes them from the shortest to the longest, opening the
/// other way round.
void TQV7SkinExplorerGroup::StartSlide(bool Opening) {
    const int change = StepChange();
    int step = 1;
    for (int position = 0; FFullHeight > position; step += change)
        position += step;
    FMaxStep = step;
    FStep = Opening ? FMaxStep - 1 : 0;
    FState = Opening ? egsOpening : egsClosing;
    FTimer.Start({this, &TQV7SkinExplorerGroup::Timer});
}

void TQV7SkinExplorerGroup::StopSlide(TExplorerGroupState State) {
    FTimer.Stop();
    FState = State;
}

void TQV7SkinExplorerGroup::Timer(TObject*) {
    if (!IsSliding()) return;
    if (FState == egsOpening) {
        FBodyHeight = std::min(FBodyHeight + FStep, FFullHeight);
        FStep -= StepChange();
    } else {
        FBodyHeight = std::max(FBodyHeight - FStep, 0);
        FStep += StepChange();
    }
    if (FStep >= FMaxStep || FStep < 0) {
        FBodyHeight = FTargetHeight;
        StopSlide(FBodyHeight == 0 ? egsClosed : egsOpen);
    }
    if (FExBar) FExBar->GroupSlid();
}

}  // namespace qv7skin
