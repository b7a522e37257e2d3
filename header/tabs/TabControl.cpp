#include "header/tabs/TabControl.h"

#include "header/items/HeaderItemTabExt.h"
#include "header/items/HeaderItems.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/stdctrls/Timer.h"

namespace qv7skin {

const TMetaClass& TQV7SkinTabControl::StaticClass() {
    using C = TQV7SkinTabControl;
    static const TMetaClass meta =
        DefineClass<C>(L"TQV7SkinTabControl", TQV7SkinSimpleTabControl::StaticClass())
            .Property(L"MinimizeIfItemCountZero", &C::GetMinimizeIfItemCountZero,
                      &C::SetMinimizeIfItemCountZero)
            .Event(L"OnAnimationStep", &C::OnAnimationStep);
    return meta;
}

TQV7SkinTabControl::TQV7SkinTabControl(TComponent* AOwner)
    : TQV7SkinSimpleTabControl(AOwner), FAnimationTimer(std::make_unique<TTimer>(nullptr)) {
    FAnimationTimer->SetEnabled(false);
    FAnimationTimer->SetInterval(AnimationInterval);
    FAnimationTimer->OnTimer = {this, &TQV7SkinTabControl::DoAnimationTimer};
    GetItems().OnCountChanged = {this, &TQV7SkinTabControl::DoOnItemCountChanged};
}

TQV7SkinTabControl::~TQV7SkinTabControl() {
    GetItems().OnCountChanged = nullptr;
}

void TQV7SkinTabControl::Loaded() {
    TQV7SkinSimpleTabControl::Loaded();
    FAnimation.Load();
    FAnimationTimer->SetEnabled(!IsInState(csDesigning));
    CheckShouldBeMinimized();
}

// --- animation

void TQV7SkinTabControl::DoAnimationTimer(TObject*) {
    const TLifeGuard guard(*this);
    FAnimation.Step();
    OnAnimationStep(this);
    if (!guard.IsAlive()) return;
    bool any = false;
    const TQV7SkinHeaderItems& items = GetItems();
    for (int i = 0; i < items.GetCount(); ++i) {
        auto* tab = dynamic_cast<TQV7SkinHeaderItemTabExt*>(items[i]);
        if (!tab) continue;
        tab->DropRenderings();
        any = true;
    }
    if (any) Refresh();
}

void TQV7SkinTabControl::DrawAnimation(TCanvas& Canvas, int State, int X) {
    FAnimation.Draw(Canvas, State, X);
}

// --- folding up

void TQV7SkinTabControl::SetMinimizeIfItemCountZero(bool Value) {
    if (FMinimizeIfItemCountZero == Value) return;
    FMinimizeIfItemCountZero = Value;
    CheckShouldBeMinimized();
}

void TQV7SkinTabControl::DoOnItemCountChanged(TObject*) {
    CheckShouldBeMinimized();
}

void TQV7SkinTabControl::CheckShouldBeMinimized() {
    if (!FMinimizeIfItemCountZero || IsInState(csLoading)) return;
    const bool empty = GetItems().GetCount() == 0;
    if (empty && GetHeight() >= 1) {
        FRestoreHeight = GetHeight();
        SetHeight(0);
    } else if (!empty && GetHeight() == 0) {
        SetHeight(FRestoreHeight);
    }
}

}  // namespace qv7skin
