#include "tests/vcl/core/SampleClasses.h"

#include "platform/vcl/core/DefineClass.h"

namespace vcl::samples {
namespace {

constexpr std::array<TIdentifier, 2> ColorNames{{{L"clNone", 0x1FFFFFFF}, {L"clBtnFace", 0xFF00000F}}};

}  // namespace

const TMetaClass& TDetail::StaticClass() {
    static const TMetaClass meta = DefineClass<TDetail>(L"TDetail", TPersistent::StaticClass())
                                       .Property(L"Width", &TDetail::GetWidth, &TDetail::SetWidth, 1)
                                       .Range(0, 100);
    return meta;
}

void TDetail::Assign(const TPersistent* source) {
    const auto* detail = dynamic_cast<const TDetail*>(source);
    if (!detail) return TPersistent::Assign(source);
    FWidth = detail->FWidth;
}

const TMetaClass& TSample::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TSample>(L"TSample", TComponent::StaticClass())
            .Property(L"Count", &TSample::GetCount, &TSample::SetCount, 5)
            .Property(L"Small", &TSample::GetSmall, &TSample::SetSmall, 0)
            .Property(L"Color", &TSample::GetColor, &TSample::SetColor, 0)
            .Identifiers(ColorNames)
            .Property(L"Active", &TSample::GetActive, &TSample::SetActive, true)
            .Property(L"Fruit", &TSample::GetFruit, &TSample::SetFruit, frPear)
            .Property(L"Fruits", &TSample::GetFruits, &TSample::SetFruits, TFruits())
            .Property(L"Ratio", &TSample::GetRatio, &TSample::SetRatio)
            .Property(L"Caption", &TSample::GetCaption, &TSample::SetCaption)
            .Stored(&TSample::IsCaptionStored)
            .Property(L"Detail", &TSample::GetDetail, &TSample::SetDetail)
            .Property(L"Partner", &TSample::GetPartner, &TSample::SetPartner)
            .Property(L"Version", &TSample::GetVersion, nullptr)
            .NotStored()
            .Field(L"Steps", &TSample::Steps, 2)
            .Event(L"OnWeigh", &TSample::OnWeigh)
            .Method<&TSample::HandleWeigh>(L"HandleWeigh");
    return meta;
}

const TMetaClass& TSpecialSample::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TSpecialSample>(L"TSpecialSample", TSample::StaticClass())
            .Property(L"Count", &TSpecialSample::GetCount, &TSpecialSample::SetCount, 9)
            .Property(L"Extra", &TSpecialSample::GetCount, &TSpecialSample::SetCount, 0);
    return meta;
}

const TMetaClass& TAbstractSample::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TAbstractSample>(L"TAbstractSample", TComponent::StaticClass());
    return meta;
}

}  // namespace vcl::samples
