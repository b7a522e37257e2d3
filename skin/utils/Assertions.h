#pragma once

#include "platform/vcl/core/Exceptions.h"
#include "skin/Namespace.h"

namespace qv7skin {

/// Raises EAssertionFailed with the message, the source name "Common/UnitGraphicsUtils" and the line when the
/// condition does not hold. The lines are fixed numbers that error reports are sorted by; they do not follow
/// the source.
inline void AssertInGraphicsUtils(bool condition, const wchar_t* message, int line) {
    Assert(condition, message, L"Common/UnitGraphicsUtils", line);
}

}  // namespace qv7skin
