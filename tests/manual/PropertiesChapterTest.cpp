// Whether docs/manual/properties.md says what the classes publish.

#include <algorithm>
#include <cmath>

#include "package/UnitQV7SkinRegister.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "tests/manual/PropertiesPage.h"
#include "tests/support/FormTest.h"

namespace {

using namespace vcl;
using test::PropertiesSection;

/// A colour without a name: "0x00F0EAE7".
String ColorText(std::int64_t color) {
    String digits = Format(L"%.8x", color);
    std::ranges::transform(digits, digits.begin(),
                           [](wchar_t c) { return c >= L'a' ? wchar_t(c - L'a' + L'A') : c; });
    return L"0x" + digits;
}

/// A number as form files write it.
String NumberText(const TPublishedProperty& property, std::int64_t number) {
    const auto names = property.ElementNames();
    const auto named = std::ranges::find(property.Identifiers(), number, &TIdentifier::Value);
    String elements;
    switch (property.Kind()) {
        case TPropertyKind::Boolean:
            return number ? L"True" : L"False";
        case TPropertyKind::Enumeration:
            return names[static_cast<std::size_t>(number)];
        case TPropertyKind::Set:
            for (std::size_t i = 0; i < names.size(); ++i)
                if (number >> i & 1) elements += (elements.empty() ? L"" : L", ") + String(names[i]);
            return L"[" + elements + L"]";
        default:
            if (named != property.Identifiers().end()) return named->Name;
            return property.Identifiers().empty() ? IntToStr(number) : ColorText(number);
    }
}

/// What the page has to say of a property of a new component.
std::string ValueText(const TPublishedProperty& property, const TComponent& component) {
    if (property.Kind() == TPropertyKind::Nested) return "";
    const TPropertyValue value = property.Get(component);
    String text = L"nil";
    if (const auto* number = std::get_if<std::int64_t>(&value)) text = NumberText(property, *number);
    if (const auto* string = std::get_if<String>(&value)) text = L"'" + *string + L"'";
    if (const auto* fraction = std::get_if<double>(&value)) text = IntToStr(std::llround(*fraction));  // days
    return "`" + ToUtf8(text) + "`";
}

class PropertiesChapterTest : public test::FormTest {
protected:
    /// Takes what the page says of the property out of the section, and compares.
    void ExpectRow(PropertiesSection& section, const TPublishedProperty& property,
                   const TComponent& component) {
        const std::string name = ToUtf8(property.Name());
        const bool isShared = section.Others.erase(name) > 0;
        const PropertiesSection& source = isShared ? FPage.at(test::SharedSection) : section;
        if (property.Kind() == TPropertyKind::Event) {
            EXPECT_TRUE(source.Events.contains(name)) << name << " is not on the page";
            section.Events.erase(name);
        } else {
            const auto row = source.Values.find(name);
            const std::string wanted = ValueText(property, component);
            ASSERT_NE(row, source.Values.end()) << name << " is not on the page: " << wanted;
            EXPECT_EQ(row->second, wanted) << name;
            section.Values.erase(name);
        }
    }
    std::map<std::string, PropertiesSection> FPage = test::ReadPropertiesPage();
};

TEST_F(PropertiesChapterTest, SaysWhatEveryClassPublishes) {
    for (const qv7skin::TPaletteEntry& entry : qv7skin::PaletteEntries()) {
        SCOPED_TRACE(ToUtf8(entry.ClassName));
        PropertiesSection section = FPage[ToUtf8(entry.ClassName)];
        const std::unique_ptr<TComponent> component(entry.Class().Create(nullptr));
        for (const TPublishedProperty* property : entry.Class().AllProperties())
            ExpectRow(section, *property, *component);
        // What is left is published no more.
        EXPECT_TRUE(section.Values.empty()) << section.Values.begin()->first;
        EXPECT_TRUE(section.Events.empty()) << *section.Events.begin();
        EXPECT_TRUE(section.Others.empty()) << *section.Others.begin();
    }
}

}  // namespace
