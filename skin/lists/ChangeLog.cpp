#include "skin/lists/ChangeLog.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "skin/UnitQV7SkinConsts.h"

namespace qv7skin {

const TMetaClass& TLstChangeLog::StaticClass() {
    static const TMetaClass meta = DefineClass<TLstChangeLog>(L"TLstChangeLog", TObject::StaticClass());
    return meta;
}

TLstChangeLog::TLstChangeLog() : FOwnList(std::make_unique<TObjectList>()) {}

TLstChangeLog::TLstChangeLog(TLstBase* iLstCloned, TLstBase* iLstUpd, TLstBase* iLstDel) : TLstChangeLog() {
    FLstCloned = iLstCloned;
    FLstUpd = iLstUpd;
    FLstDel = iLstDel;
}

TLstChangeLog::~TLstChangeLog() = default;

void TLstChangeLog::NeedLists() const {
    if (!FLstCloned || !FLstUpd || !FLstDel)
        throw EInvalidOperation(ClassName() + L" keeps no book without its lists");
}

void TLstChangeLog::InsertRec(TObject* Object) {
    NeedLists();
    if (FLstCloned->IndexOf(Object) >= 0)
        throw Exception(ClassName() + LoadSkinString(resObjectAlreadyInList));
    FLstCloned->Add(Object);
}

void TLstChangeLog::UpdateRec(TObject* Object) {
    NeedLists();
    if (FLstUpd->IndexOf(Object) < 0) FLstUpd->Add(Object);
}

void TLstChangeLog::DeleteRec(TObject* Object) {
    NeedLists();
    if (FLstCloned->IndexOf(Object) < 0) throw Exception(ClassName() + LoadSkinString(resObjectNotInList));
    FLstDel->Add(Object);
    FLstCloned->Extract(Object);
    if (FLstUpd->IndexOf(Object) >= 0) FLstUpd->Extract(Object);
}

void TLstChangeLog::Clear() {
    NeedLists();
    FLstUpd->Clear();
    FLstCloned->Clear();
    FLstDel->Clear();
}

}  // namespace qv7skin
