#include "platform/vcl/core/Exceptions.h"

#include <utility>

namespace vcl {

Exception::Exception(String message) : FMessage(std::move(message)), FUtf8(ToUtf8(FMessage)) {}

void Abort() {
    throw EAbort(L"Operation aborted");
}

void Assert(bool condition, const wchar_t* message, const wchar_t* source, int line) {
    if (condition) return;
    const String text = message && *message ? message : L"Assertion failed";
    throw EAssertionFailed(Format(L"%s (%s, line %d)", text, source, line));
}

}  // namespace vcl
