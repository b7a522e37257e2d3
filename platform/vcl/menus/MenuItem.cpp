#include "platform/vcl/menus/MenuItem.h"

#include <algorithm>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/Bitmap.h"
#include "platform/vcl/graphics/ImageList.h"
#include "platform/vcl/menus/Menu.h"
#include "platform/vcl/menus/MenuActionLink.h"
#include "platform/vcl/menus/MenuCommands.h"
#include "platform/vcl/menus/MenuLoop.h"

namespace vcl {

const TMetaClass& TMenuItem::StaticClass() {
    using C = TMenuItem;
    static const TMetaClass meta =
        DefineClass<C>(L"TMenuItem", TComponent::StaticClass())
            .Property(L"Action", &C::GetAction, &C::SetAction)
            .Property(L"AutoCheck", &C::GetAutoCheck, &C::SetAutoCheck, false)
            .Stored(&C::IsAutoCheckStored)
            .Property(L"AutoHotkeys", &C::GetAutoHotkeys, &C::SetAutoHotkeys, maParent)
            .Property(L"AutoLineReduction", &C::GetAutoLineReduction, &C::SetAutoLineReduction, maParent)
            .Property(L"Bitmap", &C::GetBitmap, &C::SetBitmap)
            .Stored(&C::IsBitmapStored)
            .Property(L"Break", &C::GetBreak, &C::SetBreak, mbNone)
            .Property(L"Caption", &C::GetCaption, &C::SetCaption)
            .Stored(&C::IsCaptionStored)
            .Property(L"Checked", &C::GetChecked, &C::SetChecked, false)
            .Stored(&C::IsCheckedStored)
            .Property(L"SubMenuImages", &C::GetSubMenuImages, &C::SetSubMenuImages)
            .Property(L"Default", &C::GetDefault, &C::SetDefault, false)
            .Property(L"Enabled", &C::GetEnabled, &C::SetEnabled, true)
            .Stored(&C::IsEnabledStored)
            .Property(L"GroupIndex", &C::GetGroupIndex, &C::SetGroupIndex, 0)
            .Range(0, 255)
            .Stored(&C::IsGroupIndexStored)
            .Property(L"HelpContext", &C::GetHelpContext, &C::SetHelpContext, 0)
            .Stored(&C::IsHelpContextStored)
            .Property(L"Hint", &C::GetHint, &C::SetHint, String())
            .Stored(&C::IsHintStored)
            .Property(L"ImageIndex", &C::GetImageIndex, &C::SetImageIndex, -1)
            .Stored(&C::IsImageIndexStored)
            .Property(L"RadioItem", &C::GetRadioItem, &C::SetRadioItem, false)
            .Property(L"ShortCut", &C::GetShortCut, &C::SetShortCut, 0)
            .Stored(&C::IsShortCutStored)
            .Property(L"Visible", &C::GetOwnVisible, &C::SetVisible, true)
            .Stored(&C::IsVisibleStored)
            .Event(L"OnClick", &C::OnClick)
            .Stored(&C::IsOnClickStored)
            .Event(L"OnDrawItem", &C::OnDrawItem)
            .Event(L"OnAdvancedDrawItem", &C::OnAdvancedDrawItem)
            .Event(L"OnMeasureItem", &C::OnMeasureItem);
    return meta;
}

TMenuItem::TMenuItem(TComponent* AOwner) : TComponent(AOwner), FCommand(TakeMenuCommand(this)) {}

TMenuItem::~TMenuItem() {
    Destroying();
    // The system goes on using a menu that is on the screen.
    if (IsOpen() && FHandle) BuryMenuHandle(std::move(FHandle));
    if (FParent) {
        TMenuItem* parent = FParent;
        parent->TakeOut(this);
        parent->Changed(true);
    }
    if (FMerged) FMerged->FMergedInto = nullptr;
    if (FMergedInto) FMergedInto->MergeWith(nullptr);
    while (!FItems.empty())
        delete FItems.back();
    EmptyHandle();
    GiveBackMenuCommand(FCommand);
}

void TMenuItem::Loaded() {
    TComponent::Loaded();
    if (TBasicAction* action = GetAction()) ActionChange(action, true);
    if (FChecked && FRadioItem) TurnSiblingsOff();
}

void TMenuItem::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation != opRemove) return;
    if (FActionLink && component == FActionLink->GetAction()) SetAction(nullptr);
    if (component == FSubMenuImages) SetSubMenuImages(nullptr);
}

bool TMenuItem::IsOpen() const {
    return FOpenLoop == PresentMenuLoop();
}

void TMenuItem::SetOpen(bool value) {
    FOpenLoop = value ? PresentMenuLoop() : 0;
}

// --- what it shows

template <class V>
bool TMenuItem::Store(V& field, const V& value) {
    if (field == value) return false;
    field = value;
    Changed(false);
    return true;
}

void TMenuItem::Changed(bool rebuild) {
    FStale = true;
    if (IsInState(csDestroying) && !rebuild) return;
    if (TMenu* menu = GetParentMenu()) menu->ItemChanged(*this, rebuild);
}

void TMenuItem::SetCaption(const String& value) {
    Store(FCaption, value);
}

void TMenuItem::SetChecked(bool value) {
    if (value == FChecked) return;
    FChecked = value;
    if (value && FRadioItem && !IsInState(csReading)) TurnSiblingsOff();
    Changed(false);
}

void TMenuItem::SetAutoCheck(bool value) {
    FAutoCheck = value;
}

void TMenuItem::SetRadioItem(bool value) {
    if (!Store(FRadioItem, value)) return;
    if (value && FChecked && !IsInState(csReading)) TurnSiblingsOff();
}

void TMenuItem::SetGroupIndex(int value) {
    value = std::clamp(value, 0, 255);
    if (!Store(FGroupIndex, value)) return;
    if (FChecked && FRadioItem && !IsInState(csReading)) TurnSiblingsOff();
    if (FParent && FParent->FMenu) FParent->Changed(true);
}

void TMenuItem::TurnSiblingsOff() {
    if (!FParent) return;
    for (TMenuItem* item : std::vector(FParent->FItems)) {
        if (item != this && item->FRadioItem && item->FGroupIndex == FGroupIndex) item->SetChecked(false);
    }
}

void TMenuItem::SetDefault(bool value) {
    if (value == FDefault) return;
    if (value && FParent) {
        for (TMenuItem* item : FParent->FItems)
            item->SetDefault(false);
    }
    Store(FDefault, value);
}

void TMenuItem::SetEnabled(bool value) {
    Store(FEnabled, value);
}

void TMenuItem::SetVisible(bool value) {
    if (value == FVisible) return;
    FVisible = value;
    Changed(true);
}

void TMenuItem::SetShortCut(TShortCut value) {
    Store(FShortCut, value);
}

void TMenuItem::SetBreak(TMenuBreak value) {
    if (Store(FBreak, value) && FParent) FParent->Changed(true);
}

void TMenuItem::SetImageIndex(int value) {
    Store(FImageIndex, value);
}

TBitmap& TMenuItem::GetBitmap() const {
    if (!FBitmap) {
        auto* self = const_cast<TMenuItem*>(this);
        self->FBitmap = std::make_unique<TBitmap>();
        self->FBitmap->SetTransparent(true);
        self->FBitmap->OnChange = {self, &TMenuItem::PictureChanged};
    }
    return *FBitmap;
}

void TMenuItem::SetBitmap(const TBitmap& value) {
    GetBitmap().Assign(&value);
    GetBitmap().SetTransparent(true);
}

void TMenuItem::PictureChanged(TObject*) {
    Changed(false);
}

void TMenuItem::SetSubMenuImages(TCustomImageList* value) {
    if (value == FSubMenuImages) return;
    FSubMenuImages = value;
    if (value) {
        value->FreeNotification(this);
        if (!FImagesLink) {
            FImagesLink = std::make_unique<TChangeLink>();
            FImagesLink->OnChange = {this, &TMenuItem::PictureChanged};
        }
        value->RegisterChanges(FImagesLink.get());
    } else {
        FImagesLink.reset();
    }
    for (TMenuItem* item : FItems)
        item->FStale = true;
    Changed(true);
}

TCustomImageList* TMenuItem::GetImageList() const {
    for (const TMenuItem* item = FParent; item; item = item->FParent) {
        if (item->FSubMenuImages) return item->FSubMenuImages;
        if (item->FMenu) return item->FMenu->GetImages();
    }
    return nullptr;
}

// --- actions

TBasicAction* TMenuItem::GetAction() const {
    return FActionLink ? FActionLink->GetAction() : nullptr;
}

void TMenuItem::SetAction(TBasicAction* value) {
    if (!value) {
        FActionLink.reset();
        return;
    }
    if (!FActionLink) FActionLink = std::make_unique<TMenuActionLink>(*this);
    FActionLink->SetAction(value);
    value->FreeNotification(this);
    ActionChange(value, value->IsInState(csLoading));
}

void TMenuItem::ActionChange(TObject* sender, bool checkDefaults) {
    const auto* action = dynamic_cast<const TBasicAction*>(sender);
    if (!action) return;
    // A handler that a designer knows by its name counts too.
    const bool hasHandler = OnClick || OnClick.MethodName();
    if (!checkDefaults || !hasHandler) OnClick = action->GetOnExecute();
    const TActionValues* shown = action->Values();
    if (!shown) return;
    const TActionValues values = *shown;
    const TLifeGuard guard(*this);
    const auto take = [&](bool isDefault, auto set, const auto& value) {
        if (guard.IsAlive() && (!checkDefaults || isDefault)) (this->*set)(value);
    };
    const bool hasOwnCaption = !FCaption.empty() && FCaption != GetName();
    take(!hasOwnCaption, &TMenuItem::SetCaption, values.Caption);
    take(!FAutoCheck, &TMenuItem::SetAutoCheck, values.AutoCheck);
    take(FGroupIndex == 0, &TMenuItem::SetGroupIndex, values.GroupIndex);
    take(!FChecked, &TMenuItem::SetChecked, values.Checked);
    take(FEnabled, &TMenuItem::SetEnabled, values.Enabled);
    take(FHelpContext == 0, &TMenuItem::SetHelpContext, values.HelpContext);
    take(FHint.empty(), &TMenuItem::SetHint, values.Hint);
    take(FImageIndex == -1, &TMenuItem::SetImageIndex, values.ImageIndex);
    take(FShortCut == scNone, &TMenuItem::SetShortCut, values.ShortCut);
    take(FVisible, &TMenuItem::SetVisible, values.Visible);
}

void TMenuItem::InitiateAction() {
    if (FActionLink) FActionLink->Update();
}

void TMenuItem::Click() {
    if (!FEnabled) return;
    const TLifeGuard guard(*this);
    const bool isDesigning = IsInState(csDesigning);
    // A linked action that checks itself does so when it is run.
    const bool actionChecks = FActionLink && FActionLink->IsAutoCheckLinked();
    if (FAutoCheck && !actionChecks && !isDesigning) SetChecked(!FChecked || FRadioItem);
    if (!guard.IsAlive()) return;
    const TBasicAction* action = GetAction();
    const bool own = OnClick.IsAssigned() && (!action || OnClick != action->GetOnExecute());
    if (!own && action && !isDesigning)
        FActionLink->Execute(this);
    else
        OnClick(this);
}

// --- rules for form files

bool TMenuItem::IsCaptionStored() const {
    return !FActionLink || !FActionLink->IsCaptionLinked();
}

bool TMenuItem::IsCheckedStored() const {
    return !FActionLink || !FActionLink->IsCheckedLinked();
}

bool TMenuItem::IsAutoCheckStored() const {
    return !FActionLink || !FActionLink->IsAutoCheckLinked();
}

bool TMenuItem::IsEnabledStored() const {
    return !FActionLink || !FActionLink->IsEnabledLinked();
}

bool TMenuItem::IsVisibleStored() const {
    return !FActionLink || !FActionLink->IsVisibleLinked();
}

bool TMenuItem::IsHintStored() const {
    return !FActionLink || !FActionLink->IsHintLinked();
}

bool TMenuItem::IsImageIndexStored() const {
    return !FActionLink || !FActionLink->IsImageIndexLinked();
}

bool TMenuItem::IsShortCutStored() const {
    return !FActionLink || !FActionLink->IsShortCutLinked();
}

bool TMenuItem::IsGroupIndexStored() const {
    return !FActionLink || !FActionLink->IsGroupIndexLinked();
}

bool TMenuItem::IsHelpContextStored() const {
    return !FActionLink || !FActionLink->IsHelpContextLinked();
}

bool TMenuItem::IsOnClickStored() const {
    return !FActionLink || !FActionLink->IsOnExecuteLinked();
}

bool TMenuItem::IsBitmapStored() const {
    return FBitmap && !FBitmap->GetEmpty();
}

}  // namespace vcl
