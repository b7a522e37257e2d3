#include "platform/vcl/actions/ActionClients.h"

#include "platform/vcl/actions/ActionBar.h"
#include "platform/vcl/actions/ActionControl.h"
#include "platform/vcl/actions/ActionManager.h"
#include "platform/vcl/core/DefineClass.h"

namespace vcl {

// --- clients

const TMetaClass& TActionClient::StaticClass() {
    using C = TActionClient;
    static const TMetaClass meta = DefineClass<C>(L"TActionClient", TCollectionItem::StaticClass())
                                       .Property(L"Items", &C::GetItems, &C::SetItems)
                                       .Stored(&C::HasItems)
                                       .Property(L"Visible", &C::GetVisible, &C::SetVisible, true);
    return meta;
}

TActionClient::TActionClient(TCollection* ACollection) : TCollectionItem(ACollection) {}

TActionClient::~TActionClient() {
    if (FItemsBar) FItemsBar->ClientGoing();
}

TActionClients& TActionClient::GetItems() const {
    auto* self = const_cast<TActionClient*>(this);
    if (!FItems) self->FItems = std::make_unique<TActionClients>(self);
    return *FItems;
}

void TActionClient::SetItems(const TActionClients& value) {
    GetItems().Assign(&value);
}

bool TActionClient::HasItems() const {
    return FItems && FItems->GetCount() > 0;
}

void TActionClient::SetVisible(bool value) {
    if (value == FVisible) return;
    FVisible = value;
    Changed(true);
}

TCustomActionManager* TActionClient::GetActionManager() const {
    if (const auto* bars = dynamic_cast<const TActionBars*>(GetCollection())) return &bars->Manager();
    if (const auto* clients = dynamic_cast<const TActionClients*>(GetCollection()))
        return clients->Client().GetActionManager();
    return nullptr;
}

void TActionClient::ItemsChanged() {
    if (FItemsBar) FItemsBar->RecreateControls();
}

void TActionClient::Assign(const TPersistent* source) {
    const auto* client = dynamic_cast<const TActionClient*>(source);
    if (!client) return TCollectionItem::Assign(source);
    SetVisible(client->FVisible);
    FTag = client->FTag;
    if (client->FItems)
        GetItems().Assign(client->FItems.get());
    else if (FItems)
        FItems->Clear();
}

// --- items

/// Keeps the item's values in step with the action's.
class TActionClientItem::TLink : public TBasicActionLink {
public:
    explicit TLink(TActionClientItem& item) : FItem(item) {}
    void SetCaption(const String& value) override {
        if (!FItem.IsCaptionStored()) FItem.SetCaption(value);
    }
    void SetImageIndex(int value) override {
        if (!FItem.IsImageIndexStored()) FItem.SetImageIndex(value);
    }
    void SetShortCut(WORD value) override {
        if (!FItem.IsShortCutStored()) FItem.SetShortCut(value);
    }
    void SetHelpContext(int value) override {
        if (!FItem.IsHelpContextStored()) FItem.SetHelpContext(value);
    }
    void SetVisible(bool value) override {
        if (FItem.Shown() && FItem.GetVisible() == FItem.Shown()->Visible) FItem.SetVisible(value);
    }

private:
    TActionClientItem& FItem;
};

const TMetaClass& TActionClientItem::StaticClass() {
    using C = TActionClientItem;
    static const TMetaClass meta = DefineClass<C>(L"TActionClientItem", TActionClient::StaticClass())
                                       .Property(L"Action", &C::GetAction, &C::SetAction)
                                       .Property(L"Caption", &C::GetCaption, &C::SetCaption, String())
                                       .Stored(&C::IsCaptionStored)
                                       .Property(L"HelpContext", &C::GetHelpContext, &C::SetHelpContext, 0)
                                       .Stored(&C::IsHelpContextStored)
                                       .Property(L"ImageIndex", &C::GetImageIndex, &C::SetImageIndex, -1)
                                       .Stored(&C::IsImageIndexStored)
                                       .Property(L"ShortCut", &C::GetShortCut, &C::SetShortCut, 0)
                                       .Stored(&C::IsShortCutStored);
    return meta;
}

TActionClientItem::TActionClientItem(TCollection* ACollection) : TActionClient(ACollection) {}

TActionClientItem::~TActionClientItem() {
    if (FControl) FControl->SetActionClient(nullptr);
}

const TActionValues* TActionClientItem::Shown() const {
    return GetAction() ? GetAction()->Values() : nullptr;
}

TBasicAction* TActionClientItem::GetAction() const {
    return FLink ? FLink->GetAction() : nullptr;
}

void TActionClientItem::SetAction(TBasicAction* value) {
    if (value == GetAction()) return;
    if (!value) {
        FLink.reset();
        return LookChanged();
    }
    if (!FLink) FLink = std::make_unique<TLink>(*this);
    FLink->SetAction(value);
    FLink->OnChange = {this, &TActionClientItem::ActionChanged};
    if (const TActionValues* shown = Shown()) {
        const TActionValues values = *shown;
        SetCaption(values.Caption);
        SetImageIndex(values.ImageIndex);
        SetShortCut(values.ShortCut);
        SetHelpContext(values.HelpContext);
        SetVisible(values.Visible);
    }
    LookChanged();
}

void TActionClientItem::ActionChanged(TObject*) {
    LookChanged();
}

void TActionClientItem::LookChanged() {
    if (FControl) FControl->ItemChanged();
}

void TActionClientItem::SetCaption(const String& value) {
    if (value == FCaption) return;
    FCaption = value;
    Changed(false);
}

void TActionClientItem::SetImageIndex(int value) {
    if (value == FImageIndex) return;
    FImageIndex = value;
    LookChanged();
}

void TActionClientItem::SetShortCut(TShortCut value) {
    if (value == FShortCut) return;
    FShortCut = value;
    Changed(false);
}

bool TActionClientItem::IsEnabled() const {
    const TActionValues* shown = Shown();
    return !shown || shown->Enabled;
}

bool TActionClientItem::IsChecked() const {
    const TActionValues* shown = Shown();
    return shown && shown->Checked;
}

bool TActionClientItem::IsRadio() const {
    const TActionValues* shown = Shown();
    return shown && shown->GroupIndex > 0;
}

String TActionClientItem::GetHint() const {
    const TActionValues* shown = Shown();
    return shown ? shown->Hint : String();
}

TActionClientItem* TActionClientItem::GetParentItem() const {
    const auto* clients = dynamic_cast<const TActionClients*>(GetCollection());
    return clients ? dynamic_cast<TActionClientItem*>(&clients->Client()) : nullptr;
}

String TActionClientItem::GetDisplayName() const {
    return FCaption.empty() ? TActionClient::GetDisplayName() : FCaption;
}

void TActionClientItem::Assign(const TPersistent* source) {
    TActionClient::Assign(source);
    const auto* item = dynamic_cast<const TActionClientItem*>(source);
    if (!item) return;
    SetAction(item->GetAction());
    SetCaption(item->FCaption);
    SetImageIndex(item->FImageIndex);
    SetShortCut(item->FShortCut);
    SetHelpContext(item->FHelpContext);
}

bool TActionClientItem::IsCaptionStored() const {
    return !Shown() || !SameCaption(Shown()->Caption, FCaption);
}

bool TActionClientItem::IsImageIndexStored() const {
    return !Shown() || Shown()->ImageIndex != FImageIndex;
}

bool TActionClientItem::IsShortCutStored() const {
    return !Shown() || Shown()->ShortCut != FShortCut;
}

bool TActionClientItem::IsHelpContextStored() const {
    return !Shown() || Shown()->HelpContext != FHelpContext;
}

// --- collections

const TMetaClass& TActionClients::StaticClass() {
    using C = TActionClients;
    static const TMetaClass meta =
        DefineClass<C>(L"TActionClients", TOwnedCollection::StaticClass())
            .Property(L"AutoHotKeys", &C::GetAutoHotKeys, &C::SetAutoHotKeys, true);
    return meta;
}

TActionClients::TActionClients(TActionClient* AOwner)
    : TOwnedCollection(AOwner, TActionClientItem::StaticClass()), FClient(*AOwner) {}

TActionClientItem* TActionClients::Add() {
    return static_cast<TActionClientItem*>(TOwnedCollection::Add());
}

TActionClientItem* TActionClients::GetItem(int index) const {
    return static_cast<TActionClientItem*>(TOwnedCollection::GetItem(index));
}

int TActionClients::GetVisibleCount() const {
    int count = 0;
    for (int i = 0; i < GetCount(); ++i)
        if (GetItem(i)->GetVisible()) ++count;
    return count;
}

void TActionClients::Update(TCollectionItem* item) {
    auto* client = dynamic_cast<TActionClientItem*>(item);
    if (client && client->GetControl())
        client->GetControl()->ItemChanged();
    else
        FClient.ItemsChanged();
}

const TMetaClass& TActionBarItem::StaticClass() {
    using C = TActionBarItem;
    static const TMetaClass meta = DefineClass<C>(L"TActionBarItem", TActionClient::StaticClass())
                                       .Property(L"ActionBar", &C::GetActionBar, &C::SetActionBar);
    return meta;
}

TActionBarItem::~TActionBarItem() {
    SetActionBar(nullptr);
}

void TActionBarItem::SetActionBar(TCustomActionBar* value) {
    if (value == GetItemsBar()) return;
    if (GetItemsBar()) GetItemsBar()->SetActionClient(nullptr);
    if (!value) return;
    if (TCustomActionManager* manager = GetActionManager()) {
        value->FreeNotification(manager);
        value->SetActionManager(manager);
    }
    value->SetActionClient(this);
}

const TMetaClass& TActionBars::StaticClass() {
    static const TMetaClass meta = DefineClass<TActionBars>(L"TActionBars", TOwnedCollection::StaticClass());
    return meta;
}

TActionBars::TActionBars(TCustomActionManager* AOwner)
    : TOwnedCollection(AOwner, TActionBarItem::StaticClass()), FManager(*AOwner) {}

TActionBarItem* TActionBars::Add() {
    return static_cast<TActionBarItem*>(TOwnedCollection::Add());
}

TActionBarItem* TActionBars::GetItem(int index) const {
    return static_cast<TActionBarItem*>(TOwnedCollection::GetItem(index));
}

}  // namespace vcl
