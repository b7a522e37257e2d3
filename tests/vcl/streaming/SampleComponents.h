#pragma once

#include <memory>
#include <vector>

#include "platform/vcl/core/Collection.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/StringList.h"

// Components that publish everything that form files can hold. They need no window.

namespace vcl {

enum class TSampleKind { skPlain, skRound, skStar };
using enum TSampleKind;
using TSampleKinds = TSet<TSampleKind>;
template <>
struct TEnumNames<TSampleKind> {
    static std::span<const wchar_t* const> Names();
};

class TSample;

/// An object in an object.
class TSampleInner : public TPersistent {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    int Depth = 1;
    String Label;
};

class TSampleStyle : public TPersistent {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    [[nodiscard]] TSampleInner& GetInner() const { return *FInner; }
    void SetInner(const TSampleInner&) {}
    TSampleKinds Kinds{skRound};
    std::uint32_t Color = 0;
    TSample* Partner = nullptr;

private:
    std::unique_ptr<TSampleInner> FInner = std::make_unique<TSampleInner>();
};

class TSampleItem : public TCollectionItem {
public:
    using TCollectionItem::TCollectionItem;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    String Text;
    int Width = 10;
    TSample* Partner = nullptr;
    TNotifyEvent OnPick;
    [[nodiscard]] TCollection& GetParts() const { return *FParts; }
    void SetParts(const TCollection& value) { FParts->Assign(&value); }

private:
    std::unique_ptr<TOwnedCollection> FParts = std::make_unique<TOwnedCollection>(this, StaticClass());
};

using TSampleCheckEvent = TEvent<void(TObject*, bool&)>;

/// A component with a parent and children, as controls are.
class TSample : public TComponent {
public:
    explicit TSample(TComponent* AOwner);
    ~TSample() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// "Loaded <name>" and the like, of all samples since the last `TakeLog`.
    static std::vector<String> TakeLog();
    static void Log(const String& text);

    [[nodiscard]] TComponent* GetParentComponent() const override { return FParent; }
    [[nodiscard]] bool HasParent() const override { return FParent != nullptr; }
    void SetParentComponent(TComponent* value) override;
    void GetChildren(const std::function<void(TComponent*)>& visit, TComponent* root) override;
    void SetChildOrder(TComponent* child, int order) override;
    [[nodiscard]] const std::vector<TSample*>& Children() const { return FChildren; }

    int Width = 75;
    std::int8_t Small = 0;
    std::uint8_t Byte = 0;
    std::int16_t Short = 0;
    std::uint16_t Word = 0;
    std::int64_t Long = 0;
    bool Visible = true;
    TSampleKind Kind = skPlain;
    TSampleKinds Kinds;
    double Ratio = 1;
    float Narrow = 0;
    std::uint32_t Color = 0xFF00000F;
    String Caption;
    String Always;
    bool Stored = true;
    [[nodiscard]] bool IsStored() const { return Stored; }
    int Secret = 0;
    [[nodiscard]] int GetArea() const { return Width * 2; }
    /// Raises EInvalidOperation for negative values.
    void SetLimit(int value);
    [[nodiscard]] int GetLimit() const { return FLimit; }
    TSample* Partner = nullptr;
    TComponent* Anyone = nullptr;
    TNotifyEvent OnClick;
    TSampleCheckEvent OnCheck;
    std::vector<std::byte> Data;
    [[nodiscard]] TSampleStyle& GetStyle() const { return *FStyle; }
    void SetStyle(const TSampleStyle&) {}
    [[nodiscard]] TStrings& GetLines() const { return *FLines; }
    void SetLines(const TStrings& value) { FLines->Assign(&value); }
    [[nodiscard]] TCollection& GetItems() const { return *FItems; }
    void SetItems(const TCollection& value) { FItems->Assign(&value); }

    /// How often `Loaded` has been called.
    int LoadedCount = 0;
    /// What a setter saw: the state when `Limit` was set last.
    TComponentState StateAtLimit;

protected:
    void DefineProperties(TFiler& filer) override;
    void Loaded() override;
    void Notification(TComponent* component, TOperation operation) override;

private:
    TSample* FParent = nullptr;
    std::vector<TSample*> FChildren;
    std::unique_ptr<TSampleStyle> FStyle = std::make_unique<TSampleStyle>();
    std::unique_ptr<TStringList> FLines = std::make_unique<TStringList>();
    std::unique_ptr<TOwnedCollection> FItems;
    int FLimit = 0;
};

/// A component without a parent; its place in a designer is a property of the framework.
class TSampleTimer : public TComponent {
public:
    using TComponent::TComponent;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    int Interval = 1000;
    TNotifyEvent OnTimer;
};

/// One that raises in its constructor.
class TSampleBroken : public TComponent {
public:
    explicit TSampleBroken(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

/// One that raises when it is loaded.
class TSampleFragile : public TSample {
public:
    using TSample::TSample;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    void Loaded() override;
};

/// The root of forms.
class TSampleForm : public TSample {
public:
    using TSample::TSample;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    void SampleClick(TObject*) { ++Clicks; }
    void OtherClick(TObject*) { Clicks += 10; }
    void SampleCheck(TObject*, bool& allow) { allow = true; }
    int Clicks = 0;

    /// The component of that name as a sample; the test fails when there is none.
    [[nodiscard]] TSample& Find(const wchar_t* name);
};

/// Registers the classes for the time of its life.
class SampleClasses {
public:
    SampleClasses();
    ~SampleClasses();
    SampleClasses(const SampleClasses&) = delete;
    SampleClasses& operator=(const SampleClasses&) = delete;
};

}  // namespace vcl
