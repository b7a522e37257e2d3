#include "tests/support/LeftOut.h"

#include <utility>

namespace test {
namespace {

std::multiset<std::string>& Present() {
    static std::multiset<std::string> kinds;
    return kinds;
}

}  // namespace

LeftOut::LeftOut(std::string kind) : FKind(std::move(kind)) {
    Present().insert(FKind);
}

LeftOut::~LeftOut() {
    Present().erase(Present().find(FKind));
}

const std::multiset<std::string>& LeftOut::Kinds() {
    return Present();
}

}  // namespace test
