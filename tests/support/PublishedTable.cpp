#include "tests/support/PublishedTable.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/vcl/core/Component.h"

namespace test {

using namespace vcl;

void ExpectPublishes(const TMetaClass& meta, std::span<const PublishedRow> rows) {
    const std::unique_ptr<TComponent> object(meta.Create(nullptr));
    for (const PublishedRow& row : rows) {
        const TPublishedProperty* property = meta.FindProperty(row.Name);
        ASSERT_NE(property, nullptr) << ToUtf8(row.Name);
        EXPECT_EQ(property->Kind(), row.What) << ToUtf8(row.Name);
        EXPECT_EQ(property->Default(), row.Default) << ToUtf8(row.Name);
        if (!row.Default) continue;
        EXPECT_EQ(property->Get(*object), *row.Default) << ToUtf8(row.Name);
    }
}

}  // namespace test
