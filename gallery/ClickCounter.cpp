#include "gallery/ClickCounter.h"

#include "platform/vcl/core/DefineClass.h"

namespace gallery {

const TMetaClass& TClickCounter::StaticClass() {
    static const TMetaClass meta = DefineClass<TClickCounter>(L"TClickCounter", TLabel::StaticClass());
    return meta;
}

TClickCounter::TClickCounter(TComponent* AOwner) : TLabel(AOwner) {
    ShowCount();
}

void TClickCounter::Count(TObject* sender) {
    ++FCount;
    FLast = static_cast<TControl*>(sender)->GetCaption();
    ShowCount();
}

void TClickCounter::ShowCount() {
    SetCaption(L"Klicks: " + IntToStr(FCount) + (FCount > 0 ? L", zuletzt „" + FLast + L"“" : String()));
}

}  // namespace gallery
