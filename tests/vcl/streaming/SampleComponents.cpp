#include "tests/vcl/streaming/SampleComponents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "platform/vcl/core/Filer.h"
#include "platform/vcl/core/Streams.h"
#include "platform/vcl/streaming/ClassRegistry.h"

namespace vcl {
namespace {

constexpr TIdentifier Colors[] = {
    {L"clBlack", 0}, {L"clRed", 0xFF}, {L"clBtnFace", 0xFF00000F}, {L"clAlsoRed", 0xFF}};

std::vector<String>& LogLines() {
    static std::vector<String> lines;
    return lines;
}

}  // namespace

std::span<const wchar_t* const> TEnumNames<TSampleKind>::Names() {
    static constexpr const wchar_t* names[] = {L"skPlain", L"skRound", L"skStar"};
    return names;
}

const TMetaClass& TSampleInner::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleInner>(L"TSampleInner", TPersistent::StaticClass())
                                       .Field(L"Depth", &TSampleInner::Depth, 1)
                                       .Field(L"Label", &TSampleInner::Label, String());
    return meta;
}

const TMetaClass& TSampleStyle::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleStyle>(L"TSampleStyle", TPersistent::StaticClass())
                                       .Field(L"Kinds", &TSampleStyle::Kinds, TSampleKinds{skRound})
                                       .Field(L"Color", &TSampleStyle::Color, 0u)
                                       .Identifiers(Colors)
                                       .Field(L"Partner", &TSampleStyle::Partner)
                                       .Property(L"Inner", &TSampleStyle::GetInner, &TSampleStyle::SetInner);
    return meta;
}

const TMetaClass& TSampleItem::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleItem>(L"TSampleItem", TCollectionItem::StaticClass())
                                       .Field(L"Text", &TSampleItem::Text, String())
                                       .Field(L"Width", &TSampleItem::Width, 10)
                                       .Field(L"Partner", &TSampleItem::Partner)
                                       .Property(L"Parts", &TSampleItem::GetParts, &TSampleItem::SetParts)
                                       .Event(L"OnPick", &TSampleItem::OnPick);
    return meta;
}

const TMetaClass& TSample::StaticClass() {
    static const TMetaClass meta = DefineClass<TSample>(L"TSample", TComponent::StaticClass())
                                       .Field(L"Width", &TSample::Width, 75)
                                       .Field(L"Small", &TSample::Small, 0)
                                       .Field(L"Byte", &TSample::Byte, 0)
                                       .Field(L"Short", &TSample::Short, 0)
                                       .Field(L"Word", &TSample::Word, 0)
                                       .Field(L"Long", &TSample::Long, 0)
                                       .Field(L"Visible", &TSample::Visible, true)
                                       .Field(L"Kind", &TSample::Kind, skPlain)
                                       .Field(L"Kinds", &TSample::Kinds, TSampleKinds())
                                       .Field(L"Ratio", &TSample::Ratio, 1)
                                       .Field(L"Narrow", &TSample::Narrow, 0)
                                       .Field(L"Color", &TSample::Color, 0xFF00000Fu)
                                       .Identifiers(Colors)
                                       .Field(L"Caption", &TSample::Caption, String())
                                       .Stored(&TSample::IsStored)
                                       .Field(L"Always", &TSample::Always)
                                       .Field(L"Secret", &TSample::Secret, 0)
                                       .NotStored()
                                       .Property(L"Area", &TSample::GetArea, nullptr)
                                       .Property(L"Limit", &TSample::GetLimit, &TSample::SetLimit, 0)
                                       .Range(0, 100)
                                       .Field(L"Partner", &TSample::Partner)
                                       .Field(L"Anyone", &TSample::Anyone)
                                       .Property(L"Style", &TSample::GetStyle, &TSample::SetStyle)
                                       .Property(L"Lines", &TSample::GetLines, &TSample::SetLines)
                                       .Property(L"Items", &TSample::GetItems, &TSample::SetItems)
                                       .Event(L"OnClick", &TSample::OnClick)
                                       .Event(L"OnCheck", &TSample::OnCheck);
    return meta;
}

TSample::TSample(TComponent* AOwner)
    : TComponent(AOwner), FItems(std::make_unique<TOwnedCollection>(this, TSampleItem::StaticClass())) {}

TSample::~TSample() {
    SetParentComponent(nullptr);
    for (TSample* child : FChildren)
        child->FParent = nullptr;
}

std::vector<String> TSample::TakeLog() {
    return std::exchange(LogLines(), {});
}

void TSample::Log(const String& text) {
    LogLines().push_back(text);
}

void TSample::SetParentComponent(TComponent* value) {
    auto* parent = dynamic_cast<TSample*>(value);
    if (value && !parent) throw EInvalidOperation(L"Samples stand in samples only");
    if (FParent) std::erase(FParent->FChildren, this);
    FParent = parent;
    if (FParent) FParent->FChildren.push_back(this);
}

void TSample::GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) {
    const auto children = FChildren;
    for (TSample* child : children) {
        if (child->GetOwner() == root) visit(child);
    }
    if (root != this) return;
    for (int i = 0; i < GetComponentCount(); ++i) {
        if (!GetComponent(i)->HasParent()) visit(GetComponent(i));
    }
}

void TSample::SetChildOrder(TComponent* child, int order) {
    const auto place = std::ranges::find(FChildren, child);
    if (place == FChildren.end()) return;
    TSample* moved = *place;
    FChildren.erase(place);
    FChildren.insert(FChildren.begin() + std::clamp<std::ptrdiff_t>(order, 0, std::ssize(FChildren)), moved);
}

void TSample::SetLimit(int value) {
    if (value < 0) throw EInvalidOperation(L"The limit must not be negative");
    StateAtLimit = GetComponentState();
    FLimit = value;
}

void TSample::DefineProperties(TFiler& filer) {
    TComponent::DefineProperties(filer);
    const auto read = [this](TStream& stream) {
        Data.resize(static_cast<std::size_t>(stream.GetSize()));
        if (Data.size() == 13) throw EInvalidGraphic(L"Thirteen bytes bring bad luck");
        stream.ReadBuffer(Data.data(), Data.size());
    };
    const auto write = [this](TStream& stream) { stream.WriteBuffer(Data.data(), Data.size()); };
    const auto* ancestor = dynamic_cast<const TSample*>(filer.GetAncestor());
    filer.DefineBinaryProperty(L"Data", read, write, ancestor ? Data != ancestor->Data : !Data.empty());
}

void TSample::Loaded() {
    TComponent::Loaded();
    ++LoadedCount;
    Log(L"Loaded " + GetName() + (Partner ? L" with " + Partner->GetName() : String()));
}

void TSample::Notification(TComponent* component, TOperation operation) {
    TComponent::Notification(component, operation);
    if (operation != opRemove) return;
    if (component == Partner) Partner = nullptr;
    if (component == Anyone) Anyone = nullptr;
}

const TMetaClass& TSampleTimer::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleTimer>(L"TSampleTimer", TComponent::StaticClass())
                                       .Field(L"Interval", &TSampleTimer::Interval, 1000)
                                       .Event(L"OnTimer", &TSampleTimer::OnTimer);
    return meta;
}

const TMetaClass& TSampleBroken::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleBroken>(L"TSampleBroken", TComponent::StaticClass());
    return meta;
}

TSampleBroken::TSampleBroken(TComponent* AOwner) : TComponent(AOwner) {
    throw EOutOfResources(L"There is no room");
}

const TMetaClass& TSampleFragile::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleFragile>(L"TSampleFragile", TSample::StaticClass());
    return meta;
}

void TSampleFragile::Loaded() {
    TSample::Loaded();
    throw EInvalidOperation(L"It breaks");
}

const TMetaClass& TSampleForm::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleForm>(L"TSampleForm", TSample::StaticClass())
                                       .Method<&TSampleForm::SampleClick>(L"SampleClick")
                                       .Method<&TSampleForm::OtherClick>(L"OtherClick")
                                       .Method<&TSampleForm::SampleCheck>(L"SampleCheck");
    return meta;
}

TSample& TSampleForm::Find(const wchar_t* name) {
    auto* found = dynamic_cast<TSample*>(FindComponent(name));
    EXPECT_NE(found, nullptr) << ToUtf8(name);
    return found ? *found : *this;
}

SampleClasses::SampleClasses() {
    RegisterClasses({&TSample::StaticClass(), &TSampleTimer::StaticClass(), &TSampleBroken::StaticClass(),
                     &TSampleFragile::StaticClass(), &TSampleForm::StaticClass()});
}

SampleClasses::~SampleClasses() {
    for (const TMetaClass* meta :
         {&TSample::StaticClass(), &TSampleTimer::StaticClass(), &TSampleBroken::StaticClass(),
          &TSampleFragile::StaticClass(), &TSampleForm::StaticClass()})
        UnRegisterClass(*meta);
}

}  // namespace vcl
