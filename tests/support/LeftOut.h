#pragma once

#include <set>
#include <string>

namespace test {

/// While it lives, leaks of a kind don't count: "gdi:region" for instance.
class LeftOut {
public:
    explicit LeftOut(std::string kind);
    ~LeftOut();
    LeftOut(const LeftOut&) = delete;
    LeftOut& operator=(const LeftOut&) = delete;
    /// What is left out now.
    [[nodiscard]] static const std::multiset<std::string>& Kinds();

private:
    std::string FKind;
};

}  // namespace test
