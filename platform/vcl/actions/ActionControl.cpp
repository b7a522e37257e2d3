#include "platform/vcl/actions/ActionControl.h"

#include "platform/vcl/actions/ActionBar.h"
#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TCustomActionControl::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TCustomActionControl>(L"TCustomActionControl", TGraphicControl::StaticClass());
    return meta;
}

TCustomActionControl::TCustomActionControl(TComponent* AOwner) : TGraphicControl(AOwner) {}

TCustomActionControl::~TCustomActionControl() {
    if (TCustomActionBar* bar = GetActionBar()) bar->ForgetControl(this);
    SetActionClient(nullptr);
}

void TCustomActionControl::SetActionClient(TActionClientItem* value) {
    if (value == FActionClient) return;
    if (FActionClient) FActionClient->FControl = nullptr;
    FActionClient = value;
    if (value) value->FControl = this;
}

TCustomActionBar* TCustomActionControl::GetActionBar() const {
    return dynamic_cast<TCustomActionBar*>(GetParent());
}

void TCustomActionControl::SetSelected(bool value) {
    if (value == FSelected) return;
    FSelected = value;
    Invalidate();
}

void TCustomActionControl::ItemChanged() {
    Invalidate();
    if (TCustomActionBar* bar = GetActionBar()) bar->ArrangeControls();
}

String TCustomActionControl::ItemCaption() const {
    return FActionClient ? FActionClient->GetCaption() : String();
}

String TCustomActionControl::ItemShortCut() const {
    return FActionClient ? ShortCutToText(FActionClient->GetShortCut()) : String();
}

TCustomImageList* TCustomActionControl::ItemImages() const {
    const TCustomActionManager* manager = FActionClient ? FActionClient->GetActionManager() : nullptr;
    return manager ? manager->GetImages() : nullptr;
}

bool TCustomActionControl::IsSeparator() const {
    return FActionClient && FActionClient->IsSeparator();
}

bool TCustomActionControl::IsItemEnabled() const {
    return FActionClient && FActionClient->IsEnabled();
}

bool TCustomActionControl::HasSubmenu() const {
    return FActionClient && FActionClient->HasItems();
}

void TCustomActionControl::Paint() {
    const TRect area = GetClientRect();
    DrawBackground(area);
    if (IsSeparator()) return DrawSeparator(area);
    DrawGlyph(area);
    DrawItemText(area);
}

}  // namespace vcl
