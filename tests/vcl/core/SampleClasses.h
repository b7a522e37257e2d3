#pragma once

#include <array>
#include <cstdint>

#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/PublishedProperty.h"

namespace vcl {

enum class TFruit { frApple, frPear, frPlum };
using TFruits = TSet<TFruit>;
template <>
struct TEnumNames<TFruit> {
    static std::span<const wchar_t* const> Names() {
        static constexpr std::array<const wchar_t*, 3> names{L"frApple", L"frPear", L"frPlum"};
        return names;
    }
};

namespace samples {

using enum TFruit;
using TWeighEvent = TEvent<void(TObject*, int)>;

/// A nested object.
class TDetail : public TPersistent {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void Assign(const TPersistent* source) override;
    [[nodiscard]] int GetWidth() const { return FWidth; }
    void SetWidth(int width) { FWidth = width; }

private:
    int FWidth = 1;
};

/// A component with a published property of every kind.
class TSample : public TComponent {
public:
    using TComponent::TComponent;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] int GetCount() const { return FCount; }
    void SetCount(int count) { FCount = count; }
    [[nodiscard]] std::int8_t GetSmall() const { return FSmall; }
    void SetSmall(std::int8_t value) { FSmall = value; }
    [[nodiscard]] std::uint32_t GetColor() const { return FColor; }
    void SetColor(std::uint32_t value) { FColor = value; }
    [[nodiscard]] bool GetActive() const { return FActive; }
    void SetActive(bool value) { FActive = value; }
    [[nodiscard]] TFruit GetFruit() const { return FFruit; }
    void SetFruit(TFruit value) { FFruit = value; }
    [[nodiscard]] TFruits GetFruits() const { return FFruits; }
    void SetFruits(TFruits value) { FFruits = value; }
    [[nodiscard]] double GetRatio() const { return FRatio; }
    void SetRatio(double value) { FRatio = value; }
    [[nodiscard]] const String& GetCaption() const { return FCaption; }
    void SetCaption(const String& value) { FCaption = value; }
    [[nodiscard]] const TDetail& GetDetail() const { return FDetail; }
    void SetDetail(const TDetail& value) { FDetail.Assign(&value); }
    [[nodiscard]] TSample* GetPartner() const { return FPartner; }
    void SetPartner(TSample* value) { FPartner = value; }
    [[nodiscard]] int GetVersion() const { return 3; }
    [[nodiscard]] bool IsCaptionStored() const { return FCaption != GetName(); }
    void HandleWeigh(TObject*, int weight) { LastWeight = weight; }

    int Steps = 2;
    int LastWeight = 0;
    TWeighEvent OnWeigh;

private:
    int FCount = 5;
    std::int8_t FSmall = 0;
    std::uint32_t FColor = 0;
    bool FActive = true;
    TFruit FFruit = frPear;
    TFruits FFruits;
    double FRatio = 0.5;
    String FCaption;
    TDetail FDetail;
    TSample* FPartner = nullptr;
};

/// Publishes Count with another default, without touching its implementation.
class TSpecialSample : public TSample {
public:
    using TSample::TSample;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

/// Can't be made by class.
class TAbstractSample : public TComponent {
public:
    using TComponent::TComponent;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    virtual void Work() = 0;
};

}  // namespace samples
}  // namespace vcl
