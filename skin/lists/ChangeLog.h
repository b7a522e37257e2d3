#pragma once

#include <memory>

#include "platform/vcl/core/ObjectList.h"
#include "skin/lists/BaseList.h"

namespace qv7skin {

/// Keeps book of the changes to a list of records: what is inserted goes into the list itself, what is
/// updated or deleted is noted in two further lists. All three are the caller's. A log without lists
/// raises EInvalidOperation when it is used.
class TLstChangeLog : public TObject {
public:
    TLstChangeLog();
    TLstChangeLog(TLstBase* iLstCloned, TLstBase* iLstUpd, TLstBase* iLstDel);
    ~TLstChangeLog() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Appends a record to the current ones. Raises Exception (class name and a German text) when it is there
    /// already.
    void InsertRec(TObject* Object);
    /// Notes that a record was changed, once; whether it is a current one does not matter.
    void UpdateRec(TObject* Object);
    /// Moves a record from the current ones to the deleted ones; it is no updated one any more. Raises
    /// Exception (class name and a German text) when it is no current record.
    void DeleteRec(TObject* Object);
    /// Empties the three lists; those that own their objects free them.
    void Clear();

private:
    void NeedLists() const;

    std::unique_ptr<TObjectList> FOwnList;
    TLstBase* FLstCloned = nullptr;
    TLstBase* FLstUpd = nullptr;
    TLstBase* FLstDel = nullptr;
};

}  // namespace qv7skin
