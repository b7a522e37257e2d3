#pragma once

#include <map>
#include <set>
#include <string>

namespace test {

/// What a section of docs/manual/properties.md says.
struct PropertiesSection {
    std::map<std::string, std::string> Values;  ///< Properties with what stands under "at first".
    std::set<std::string> Events;
    std::set<std::string> Others;  ///< Named only, since the section of all classes has their rows.
};

/// The sections of the page by their headings. The page is a resource of the test program.
[[nodiscard]] std::map<std::string, PropertiesSection> ReadPropertiesPage();

/// The heading of the section whose rows many classes have.
inline constexpr const char* SharedSection = "What many have";

}  // namespace test
