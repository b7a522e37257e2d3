#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "buttons/UnitQV7SkinButton.h"
#include "platform/vcl/core/MetaClass.h"
#include "platform/vcl/core/PublishedProperty.h"

namespace {

using namespace qv7skin;
using Kind = TPropertyKind;

/// What the palette's button has to publish.
struct Row {
    const wchar_t* Name;
    Kind What;
    std::optional<std::int64_t> Default;
};

constexpr std::int64_t LeftAndTop = 0b0011;
const Row Table[] = {
    {L"Alignment", Kind::Enumeration, {}},
    {L"FontHovered", Kind::Nested, {}},
    {L"FontDisabled", Kind::Nested, {}},
    {L"TextMarginHorizontal", Kind::Integer, {}},
    {L"TextMarginVertical", Kind::Integer, {}},
    {L"TextMarginLeft", Kind::Integer, {}},
    {L"TextOffsetDownHorizontal", Kind::Integer, {}},
    {L"TextOffsetDownVertical", Kind::Integer, {}},
    {L"FocusedRectMarginHorizontal", Kind::Integer, {}},
    {L"FocusedRectMarginVertical", Kind::Integer, {}},
    {L"UseSkinFonts", Kind::Boolean, {}},
    {L"AllowDblClick", Kind::Boolean, {}},
    {L"DrawFocusedRect", Kind::Boolean, {}},
    {L"DrawHoveredIfFocused", Kind::Boolean, {}},
    {L"StretchImage", Kind::Boolean, {}},
    {L"ClickOnSpace", Kind::Boolean, {}},
    {L"ButtonStyle", Kind::Enumeration, {}},
    {L"Default", Kind::Boolean, 0},
    {L"Cancel", Kind::Boolean, 0},
    {L"Down", Kind::Boolean, 0},
    {L"ModalResult", Kind::Integer, 0},
    {L"Caption", Kind::String, {}},
    {L"Font", Kind::Nested, {}},
    {L"Action", Kind::Component, {}},
    {L"Anchors", Kind::Set, LeftAndTop},
    {L"Enabled", Kind::Boolean, 1},
    {L"Visible", Kind::Boolean, 1},
    {L"Hint", Kind::String, {}},
    {L"ShowHint", Kind::Boolean, {}},
    {L"TabStop", Kind::Boolean, 1},
    {L"TabOrder", Kind::Integer, -1},
    {L"OnClick", Kind::Event, {}},
    {L"OnDblClick", Kind::Event, {}},
    {L"OnMouseDown", Kind::Event, {}},
    {L"OnMouseEnter", Kind::Event, {}},
    {L"OnMouseLeave", Kind::Event, {}},
    {L"OnStateChange", Kind::Event, {}},
    {L"OnSetButtonSize", Kind::Event, {}},
};

TEST(SkinButtonPublished, HasEveryRowOfTheTable) {
    for (const Row& row : Table) {
        const TPublishedProperty* property = TQV7SkinButton::StaticClass().FindProperty(row.Name);
        ASSERT_NE(property, nullptr) << ToUtf8(row.Name);
        EXPECT_EQ(property->Kind(), row.What) << ToUtf8(row.Name);
        EXPECT_FALSE(property->IsReadOnly()) << ToUtf8(row.Name);
        EXPECT_EQ(property->Default().has_value(), row.Default.has_value()) << ToUtf8(row.Name);
        if (property->Default() && row.Default) {
            EXPECT_EQ(std::get<std::int64_t>(*property->Default()), *row.Default) << ToUtf8(row.Name);
        }
    }
}

TEST(SkinButtonPublished, HasNoRowOfItsOwnBeyondTheTable) {
    EXPECT_EQ(TQV7SkinButton::StaticClass().OwnProperties().size(), std::size(Table));
    for (const TMetaClass* base = TQV7SkinButton::StaticClass().ClassParent();
         base != &TWinControl::StaticClass(); base = base->ClassParent())
        EXPECT_TRUE(base->OwnProperties().empty()) << ToUtf8(base->ClassName());
}

TEST(SkinButtonPublished, ANewButtonHasTheDefaults) {
    const TQV7SkinButton button(nullptr);
    for (const Row& row : Table) {
        if (!row.Default) continue;
        const TPublishedProperty* property = TQV7SkinButton::StaticClass().FindProperty(row.Name);
        ASSERT_NE(property, nullptr);
        EXPECT_EQ(property->Get(button), TPropertyValue(*row.Default)) << ToUtf8(row.Name);
    }
}

TEST(SkinButtonPublished, OnSetButtonSizeIsTheGlowButtonsEvent) {
    const TPublishedProperty* property = TQV7SkinButton::StaticClass().FindProperty(L"OnSetButtonSize");
    ASSERT_NE(property, nullptr);
    EXPECT_TRUE(property->EventType() == typeid(TSetButtonSizeEvent));
}

}  // namespace
