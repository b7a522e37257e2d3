#pragma once

#include "platform/vcl/core/Object.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// The common ancestor of records.
class TBase : public TObject {
public:
    TBase() = default;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

/// How a record stands to what is stored of it.
enum class TRecStatus { rsUnchanged, rsNew, rsUpdated, rsDeleted };
using enum TRecStatus;

}  // namespace qv7skin

template <>
struct vcl::TEnumNames<qv7skin::TRecStatus> {
    static std::span<const wchar_t* const> Names();
};

namespace qv7skin {

/// A record that knows whether it is new, changed or deleted, and can go back to its last commit.
/// Descendants answer the questions and act; they mark a record as deleted with `FStatus`.
class TRecStatusBase : public TBase {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// `rsDeleted` once it is that; else reckoned anew from the record's answers, and kept.
    [[nodiscard]] TRecStatus GetStatus();
    /// Lets the record commit; it is unchanged then.
    void Commit();
    /// Goes back to the status of the last commit, then lets the record roll back.
    void Rollback();
    /// The record is unchanged, then it clears itself.
    void Clear();
    /// Takes over the status of another record, and what it would roll back to.
    void CopyStatus(TRecStatusBase& Other);

protected:
    [[nodiscard]] virtual bool IsNew() const = 0;
    /// Asked only when the record is not new.
    [[nodiscard]] virtual bool IsChanged() const = 0;
    virtual void DoCommit() = 0;
    virtual void DoRollback() = 0;
    virtual void DoClear() = 0;

    TRecStatus FStatus = rsUnchanged;
    TRecStatus FBKUPStatus = rsUnchanged;  ///< The status of the last commit.
};

}  // namespace qv7skin
