#include "platform/vcl/actions/ShortCutList.h"

#include "platform/vcl/core/DefineClass.h"

namespace vcl {

const TMetaClass& TShortCutList::StaticClass() {
    static const TMetaClass meta = DefineClass<TShortCutList>(L"TShortCutList", TStringList::StaticClass());
    return meta;
}

int TShortCutList::IndexOfShortCut(TShortCut shortCut) const {
    for (int i = 0; shortCut != scNone && i < GetCount(); ++i)
        if (GetShortCut(i) == shortCut) return i;
    return -1;
}

}  // namespace vcl
