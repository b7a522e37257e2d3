#pragma once

#include <vector>

#include "platform/vcl/core/Filer.h"
#include "platform/vcl/streaming/FormDocument.h"

namespace vcl {

/// Builds the value of a property that a class defines itself. Raises EWriteError for anything but one value
/// or one list.
class TValueBuilder final : public TValueWriter {
public:
    void WriteInteger(std::int64_t value) override { Add(value); }
    void WriteFloat(double value) override;
    void WriteBoolean(bool value) override { Add(value); }
    void WriteString(const String& value) override { Add(value); }
    void WriteIdent(const String& value) override { Add(TFormIdent{value}); }
    void WriteListBegin() override { FOpen.emplace_back(); }
    void WriteListEnd() override;
    [[nodiscard]] TFormValue Take();

private:
    void Add(TFormValue::TContent content);

    std::vector<TFormList> FOpen;  ///< The lists that have begun, outermost first.
    std::vector<TFormValue> FDone;
};

/// A number with a fraction as a value; raises EWriteError when it is not finite.
[[nodiscard]] TFormFloat FiniteFloat(double value);

}  // namespace vcl
