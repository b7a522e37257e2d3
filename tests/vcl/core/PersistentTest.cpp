#include "platform/vcl/core/Persistent.h"

#include "platform/vcl/core/Exceptions.h"
#include "tests/support/LedgerTest.h"
#include "tests/vcl/core/Probes.h"
#include "tests/vcl/core/SampleClasses.h"

namespace vcl {
namespace {

using probes::MessageOf;
using samples::TDetail;

/// Knows how to write itself into a detail, which knows nothing of this class.
class TGiver : public TPersistent {
protected:
    void AssignTo(TPersistent* dest) const override {
        if (auto* detail = dynamic_cast<TDetail*>(dest))
            detail->SetWidth(42);
        else
            TPersistent::AssignTo(dest);
    }
};

class PersistentTest : public test::LedgerTest {};

TEST_F(PersistentTest, TheSourceIsAskedWhenTheTargetDoesNotKnowIt) {
    TDetail detail;
    const TGiver giver;
    detail.Assign(&giver);
    EXPECT_EQ(detail.GetWidth(), 42);
}

TEST_F(PersistentTest, TheErrorNamesBothClasses) {
    TDetail detail;
    TPersistent plain;
    const TGiver giver;
    EXPECT_EQ(MessageOf<EConvertError>([&] { detail.Assign(&plain); }),
              L"Cannot assign a TPersistent to a TDetail");
    EXPECT_EQ(MessageOf<EConvertError>([&] { plain.Assign(&giver); }),
              L"Cannot assign a TPersistent to a TPersistent");
    EXPECT_EQ(MessageOf<EConvertError>([&] { detail.Assign(nullptr); }), L"Cannot assign a nil to a TDetail");
}

TEST_F(PersistentTest, IsNamedAfterItsOwnerOrItsClass) {
    const TDetail detail;
    EXPECT_EQ(detail.GetOwner(), nullptr);
    EXPECT_EQ(detail.GetNamePath(), L"TDetail");
    TComponent component(nullptr);
    component.SetName(L"Panel1");
    EXPECT_EQ(component.GetNamePath(), L"Panel1");
}

}  // namespace
}  // namespace vcl
