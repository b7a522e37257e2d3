#include <memory>
#include <optional>
#include <span>

#include "inputs/UnitQV7SkinCheckBox.h"
#include "inputs/UnitQV7SkinComboBox.h"
#include "inputs/UnitQV7SkinComboBoxCustomDropDown.h"
#include "inputs/UnitQV7SkinDateTimePicker.h"
#include "inputs/UnitQV7SkinEdit.h"
#include "inputs/UnitQV7SkinGroupBox.h"
#include "inputs/UnitQV7SkinPanel.h"
#include "inputs/UnitQV7SkinRadioButton.h"
#include "inputs/UnitQV7SkinSpinEdit.h"
#include "inputs/UnitQV7SkinTreeComboBox.h"
#include "platform/vcl/core/PublishedProperty.h"
#include "platform/vcl/streaming/ClassRegistry.h"
#include "platform/vcl/streaming/FormText.h"
#include "platform/vcl/streaming/Reader.h"
#include "tests/inputs/InputsTest.h"
#include "tests/support/CalendarFonts.h"
#include "tests/support/PublishedTable.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;
using Kind = TPropertyKind;

using test::Number;
using test::PublishedRow;

class InputsPublished : public InputsTest {
private:
    test::CalendarFonts FFonts;
};

TEST_F(InputsPublished, TheComboBoxHasEveryRowOfItsTable) {
    const PublishedRow rows[] = {
        {L"TabOrder", Kind::Integer, Number(-1)},
        {L"TabStop", Kind::Boolean, Number(0)},
        {L"Anchors", Kind::Set, Number(3)},
        {L"ItemIndex", Kind::Integer, {}},
        {L"Items", Kind::Nested, {}},
        {L"Sorted", Kind::Boolean, {}},
        {L"Text", Kind::String, {}},
        {L"Style", Kind::Enumeration, {}},
        {L"OnChange", Kind::Event, {}},
        {L"OnClick", Kind::Event, {}},
        {L"OnKeyPress", Kind::Event, {}},
        {L"Rounding", Kind::Integer, Number(4)},
    };
    ExpectPublishes(TQV7SkinComboBox::StaticClass(), rows);
    EXPECT_EQ(TQV7SkinComboBox::StaticClass().OwnProperties().size(), std::size(rows) - 1);
}

TEST_F(InputsPublished, TheDropDownHasEveryRowOfItsTable) {
    const PublishedRow rows[] = {
        {L"TabOrder", Kind::Integer, Number(-1)},
        {L"TabStop", Kind::Boolean, Number(0)},
        {L"Align", Kind::Enumeration, Number(0)},
        {L"Anchors", Kind::Set, Number(3)},
        {L"Text", Kind::String, {}},
        {L"OnDropDown", Kind::Event, {}},
        {L"OnCloseUp", Kind::Event, {}},
        {L"Rounding", Kind::Integer, Number(4)},
    };
    ExpectPublishes(TQV7SkinComboBoxCustomDropDown::StaticClass(), rows);
    EXPECT_EQ(TQV7SkinComboBoxCustomDropDown::StaticClass().OwnProperties().size(), std::size(rows) - 1);
}

TEST_F(InputsPublished, TheTreeComboBoxAddsNothingToItsBase) {
    const PublishedRow rows[] = {
        {L"Text", Kind::String, {}},           {L"Items", Kind::Nested, {}},
        {L"OnChange", Kind::Event, {}},        {L"OnClick", Kind::Event, {}},
        {L"OnKeyPress", Kind::Event, {}},      {L"OnDropUp", Kind::Event, {}},
        {L"OnTreeExpanding", Kind::Event, {}},
    };
    ExpectPublishes(TCustomQV7SkinTreeComboBox::StaticClass(), rows);
    EXPECT_TRUE(TQV7SkinTreeComboBox::StaticClass().OwnProperties().empty());
}

TEST_F(InputsPublished, TheSpinEditHasEveryRowOfItsTable) {
    const PublishedRow rows[] = {
        {L"TabOrder", Kind::Integer, Number(-1)},
        {L"TabStop", Kind::Boolean, Number(0)},
        {L"Anchors", Kind::Set, Number(3)},
        {L"Increment", Kind::Integer, Number(1)},
        {L"MaxValue", Kind::Integer, {}},
        {L"MinValue", Kind::Integer, {}},
        {L"Value", Kind::Integer, {}},
        {L"Enabled", Kind::Boolean, Number(1)},
        {L"OnChange", Kind::Event, {}},
        {L"OnClick", Kind::Event, {}},
        {L"OnKeyPress", Kind::Event, {}},
        {L"Rounding", Kind::Integer, Number(4)},
    };
    ExpectPublishes(TQV7SkinSpinEdit::StaticClass(), rows);
    EXPECT_EQ(TQV7SkinSpinEdit::StaticClass().OwnProperties().size(), std::size(rows) - 1);
}

TEST_F(InputsPublished, TheDatePickerHasEveryRowOfItsTable) {
    const PublishedRow rows[] = {
        {L"TabOrder", Kind::Integer, Number(-1)}, {L"TabStop", Kind::Boolean, Number(0)},
        {L"Align", Kind::Enumeration, Number(0)}, {L"Anchors", Kind::Set, Number(3)},
        {L"DateFormat", Kind::String, {}},        {L"EditMask", Kind::String, {}},
        {L"OnDateChange", Kind::Event, {}},       {L"OnDropDown", Kind::Event, {}},
        {L"OnCloseUp", Kind::Event, {}},          {L"Rounding", Kind::Integer, Number(4)},
    };
    ExpectPublishes(TQV7SkinDateTimePicker::StaticClass(), rows);
    const TMetaClass& meta = TQV7SkinDateTimePicker::StaticClass();
    EXPECT_EQ(meta.OwnProperties().size(), std::size(rows));
    EXPECT_EQ(meta.FindProperty(L"Date")->Default(), TPropertyValue(0.0));
}

TEST_F(InputsPublished, TheEditHasEveryRowOfItsTable) {
    const PublishedRow rows[] = {
        {L"Text", Kind::String, {}},
        {L"PasswordChar", Kind::Integer, Number(0)},
        {L"Enabled", Kind::Boolean, Number(1)},
        {L"OnChange", Kind::Event, {}},
        {L"OnClick", Kind::Event, {}},
        {L"OnKeyDown", Kind::Event, {}},
        {L"OnKeyPress", Kind::Event, {}},
        {L"OnKeyUp", Kind::Event, {}},
        {L"OnExit", Kind::Event, {}},
        {L"Anchors", Kind::Set, Number(3)},
        {L"TabOrder", Kind::Integer, Number(-1)},
        {L"TabStop", Kind::Boolean, Number(1)},
        {L"Rounding", Kind::Integer, Number(4)},
    };
    ExpectPublishes(TQV7SkinEdit::StaticClass(), rows);
    EXPECT_EQ(TQV7SkinEdit::StaticClass().OwnProperties().size(), std::size(rows) - 1);
}

TEST_F(InputsPublished, TheFlatOnesKnowTheirColoursAsDefaults) {
    const auto defaultOf = [](const TMetaClass& meta, const wchar_t* name) {
        return meta.FindProperty(name)->Default();
    };
    EXPECT_EQ(defaultOf(TQV7SkinCheckBox::StaticClass(), L"ColorBorder"), Number(0x00F0EAE7));
    EXPECT_EQ(defaultOf(TQV7SkinCheckBox::StaticClass(), L"ColorFocused"), Number(0x00F0E7EA));
    EXPECT_EQ(defaultOf(TQV7SkinRadioButton::StaticClass(), L"ColorBorder"), Number(0x00F0EAE7));
    EXPECT_EQ(defaultOf(TQV7SkinGroupBox::StaticClass(), L"ColorBorder"), Number(0x00F0EAE7));
    EXPECT_EQ(defaultOf(TQV7SkinPanel::StaticClass(), L"Color"), Number(0x00F0EAE7));
    EXPECT_EQ(defaultOf(TQV7SkinPanel::StaticClass(), L"DoubleBuffered"), Number(1));
}

// --- what a form file makes

class InputsFormFile : public InputsTest {
protected:
    template <class Control>
    Control& Load(const String& properties) {
        RegisterClass(Control::StaticClass());
        const String text = L"object Form: TForm\nobject Input: " +
                            String(Control::StaticClass().ClassName()) + L"\nWidth = 120\nHeight = 20\n" +
                            properties + L"\nend\nend";
        TReader(ParseFormText(text)).ReadRootComponent(&Form());
        return dynamic_cast<Control&>(*Form().FindComponent(L"Input"));
    }

private:
    GermanDates FGerman;
    test::CalendarFonts FFonts;
};

TEST_F(InputsFormFile, AComboBoxGetsItsInnerControl) {
    auto& box = Load<TQV7SkinComboBox>(
        L"ItemIndex = 1\nItems.Strings = ('drei' 'eins' 'zwei')\nSorted = True\nStyle = csDropDownList");
    ASSERT_NE(box.GetComboBox(), nullptr);
    EXPECT_EQ(box.GetText(), L"eins");
    EXPECT_EQ(box.GetItemIndex(), 1);
    EXPECT_TRUE(box.GetComboBox()->GetSorted());
    EXPECT_EQ(box.GetComboBox()->GetStyle(), csDropDownList);
    EXPECT_EQ(box.GetComboBox()->GetTop(), 2);
    EXPECT_EQ(box.GetHeight(), 25);
}

TEST_F(InputsFormFile, AComboBoxKeepsItsTextWithoutAnEntry) {
    auto& box = Load<TQV7SkinComboBox>(L"Items.Strings = ('eins')\nText = 'frei'");
    EXPECT_EQ(box.GetText(), L"frei");
    EXPECT_EQ(box.GetComboBox()->GetText(), L"frei");
    EXPECT_EQ(box.GetItemIndex(), -1);
}

TEST_F(InputsFormFile, ADropDownGetsItsParts) {
    auto& drop = Load<TQV7SkinComboBoxCustomDropDown>(L"Text = 'Wahl'");
    ASSERT_NE(drop.GetLabel(), nullptr);
    ASSERT_NE(drop.GetButton(), nullptr);
    EXPECT_EQ(drop.GetText(), L"Wahl");
    EXPECT_EQ(drop.GetHeight(), 25);
    EXPECT_EQ(drop.OnMouseUp.ObjectPart(), &drop);
}

TEST_F(InputsFormFile, ATreeComboBoxGetsItsInnerControl) {
    auto& box = Load<TQV7SkinTreeComboBox>(L"Items.Strings = ('eins' #9'zwei')\nItemIndex = 1");
    EXPECT_EQ(box.GetText(), L"zwei");
    EXPECT_EQ(box.GetSelected()->GetLevel(), 1);
    EXPECT_EQ(box.GetHeight(), 25);
}

TEST_F(InputsFormFile, ASpinEditGetsItsInnerControl) {
    auto& spin = Load<TQV7SkinSpinEdit>(L"Value = 7\nMaxValue = 9\nMinValue = 2\nIncrement = 3");
    ASSERT_NE(spin.GetEdit(), nullptr);
    EXPECT_EQ(spin.GetEdit()->GetText(), L"7");
    EXPECT_EQ(spin.GetEdit()->GetMaxValue(), 9);
    EXPECT_EQ(spin.GetEdit()->GetMinValue(), 2);
    EXPECT_EQ(spin.GetEdit()->GetIncrement(), 3);
    EXPECT_EQ(spin.GetHeight(), 25);
}

TEST_F(InputsFormFile, ADatePickerGetsItsPartsAndItsCalendar) {
    auto& picker = Load<TQV7SkinDateTimePicker>(L"Date = 41673");
    ASSERT_NE(picker.GetLabel(), nullptr);
    ASSERT_NE(picker.GetCalendarForm(), nullptr);
    EXPECT_EQ(picker.GetText(), L"Mo, 03.02.2014");
    EXPECT_EQ(picker.GetDropDownForm(), picker.GetCalendarForm());
    EXPECT_TRUE(picker.GetCalendarForm()->GetShowPopupWithMargin());
}

}  // namespace
