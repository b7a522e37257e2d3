#pragma once

#include <vector>

#include "platform/vcl/core/Filer.h"
#include "platform/vcl/streaming/FormPlace.h"

namespace vcl {

/// Walks through a value of a document for a property that a class defines itself.
class TValueCursor final : public TValueReader {
public:
    TValueCursor(const TFormValue& value, const TFormPlace& place);

    [[nodiscard]] TValueKind NextValue() const override;
    [[nodiscard]] std::int32_t ReadInteger() override;
    [[nodiscard]] std::int64_t ReadInt64() override;
    [[nodiscard]] double ReadFloat() override;
    [[nodiscard]] bool ReadBoolean() override;
    [[nodiscard]] String ReadString() override;
    [[nodiscard]] String ReadIdent() override;
    void ReadListBegin() override;
    void ReadListEnd() override;
    [[nodiscard]] bool EndOfList() const override;
    /// Raises EFormError when something has been left over.
    void ExpectEnd() const;

private:
    struct TLevel {
        const TFormValue* Next;
        const TFormValue* End;
    };
    /// The next value, which must be of that kind, and moves on.
    const TFormValue& Take(TValueKind expected);
    [[noreturn]] void FailExpected(TValueKind expected) const;
    [[nodiscard]] TFormPosition Position() const;

    const TFormValue& FValue;
    const TFormPlace& FPlace;
    std::vector<TLevel> FLevels;
};

}  // namespace vcl
