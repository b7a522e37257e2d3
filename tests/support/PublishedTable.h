#pragma once

#include <optional>
#include <span>

#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/streaming/ClassRegistry.h"

namespace test {

/// A property that a class has to publish; without a value it has no default.
struct PublishedRow {
    const wchar_t* Name;
    vcl::TPropertyKind What;
    std::optional<vcl::TPropertyValue> Default;
};

[[nodiscard]] inline vcl::TPropertyValue Number(std::int64_t value) {
    return value;
}

/// Expects each row among what the class publishes, with that default, which a new object has.
void ExpectPublishes(const vcl::TMetaClass& meta, std::span<const PublishedRow> rows);

}  // namespace test
