#include "tests/vcl/streaming/DesignedForms.h"

#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormResources.h"

namespace vcl {

const TMetaClass& TSampleBase::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleBase>(L"TSampleBase", TSampleForm::StaticClass())
                                       .Method<&TSampleBase::BaseClick>(L"BaseClick");
    return meta;
}

TSampleBase::TSampleBase(TComponent* AOwner) : TSampleForm(AOwner) {
    InitInheritedComponent(*this, TSampleForm::StaticClass());
}

void TSampleBase::Loaded() {
    TSampleForm::Loaded();
    Log(L"Base");
}

const TMetaClass& TSampleDerived::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleDerived>(L"TSampleDerived", TSampleBase::StaticClass())
                                       .Method<&TSampleDerived::DerivedClick>(L"DerivedClick");
    return meta;
}

TSampleDerived::TSampleDerived(TComponent* AOwner) : TSampleBase(AOwner) {
    Log(L"Constructing with " + IntToStr(Find(L"First").Width));
    InitInheritedComponent(*this, TSampleBase::StaticClass());
}

void TSampleDerived::Loaded() {
    TSampleBase::Loaded();
    Log(L"Derived");
}

const TMetaClass& TSampleLateBase::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TSampleLateBase>(L"TSampleLateBase", TSampleForm::StaticClass());
    return meta;
}

const TMetaClass& TSampleLate::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleLate>(L"TSampleLate", TSampleLateBase::StaticClass());
    return meta;
}

TSampleLate::TSampleLate(TComponent* AOwner) : TSampleLateBase(AOwner) {
    InitInheritedComponent(*this, TSampleForm::StaticClass());
}

const TMetaClass& TSampleFrame::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleFrame>(L"TSampleFrame", TSample::StaticClass())
                                       .Method<&TSampleFrame::FrameClick>(L"FrameClick");
    return meta;
}

TSampleFrame::TSampleFrame(TComponent* AOwner) : TSample(AOwner) {
    InitInheritedComponent(*this, TSample::StaticClass());
}

const TMetaClass& TSampleWideFrame::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TSampleWideFrame>(L"TSampleWideFrame", TSampleFrame::StaticClass());
    return meta;
}

TSampleWideFrame::TSampleWideFrame(TComponent* AOwner) : TSampleFrame(AOwner) {
    InitInheritedComponent(*this, TSampleFrame::StaticClass());
}

const TMetaClass& TSampleSpoilt::StaticClass() {
    static const TMetaClass meta = DefineClass<TSampleSpoilt>(L"TSampleSpoilt", TSampleForm::StaticClass());
    return meta;
}

TSampleSpoilt::TSampleSpoilt(TComponent* AOwner) : TSampleForm(AOwner) {
    InitInheritedComponent(*this, TSampleForm::StaticClass());
}

FrameClasses::FrameClasses() {
    RegisterClasses({&TSampleFrame::StaticClass(), &TSampleWideFrame::StaticClass()});
}

FrameClasses::~FrameClasses() {
    UnRegisterClass(TSampleFrame::StaticClass());
    UnRegisterClass(TSampleWideFrame::StaticClass());
}

}  // namespace vcl
