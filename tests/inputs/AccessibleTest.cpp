#include <oleacc.h>

#include <algorithm>

#include "inputs/UnitQV7SkinCheckBox.h"
#include "inputs/UnitQV7SkinDateTimePicker.h"
#include "inputs/UnitQV7SkinRadioButton.h"
#include "tests/inputs/InputsTest.h"
#include "tests/support/CalendarFonts.h"

namespace {

using namespace qv7skin;
using namespace qv7skin::probes;

/// What a screen reader hears of a window.
class Reader {
public:
    explicit Reader(TWinControl& control) {
        ::AccessibleObjectFromWindow(control.GetHandle(), static_cast<DWORD>(OBJID_CLIENT),
                                     __uuidof(IAccessible), reinterpret_cast<void**>(&FObject));
        FSelf.vt = VT_I4;
        FSelf.lVal = CHILDID_SELF;
    }
    ~Reader() {
        if (FObject) FObject->Release();
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    [[nodiscard]] bool IsConnected() const { return FObject != nullptr; }
    [[nodiscard]] String Name() const { return Text(&IAccessible::get_accName); }
    [[nodiscard]] String Value() const { return Text(&IAccessible::get_accValue); }
    [[nodiscard]] String Action() const { return Text(&IAccessible::get_accDefaultAction); }
    [[nodiscard]] int Role() const { return Number(&IAccessible::get_accRole); }
    [[nodiscard]] int State() const { return Number(&IAccessible::get_accState); }
    [[nodiscard]] HRESULT Act() const { return FObject->accDoDefaultAction(FSelf); }
    [[nodiscard]] HRESULT RoleResult() const {
        VARIANT value{};
        return FObject->get_accRole(FSelf, &value);
    }

private:
    template <class Method>
    [[nodiscard]] String Text(Method method) const {
        BSTR text = nullptr;
        (FObject->*method)(FSelf, &text);
        const String found = text ? text : L"";
        ::SysFreeString(text);
        return found;
    }
    template <class Method>
    [[nodiscard]] int Number(Method method) const {
        VARIANT value{};
        (FObject->*method)(FSelf, &value);
        return value.vt == VT_I4 ? static_cast<int>(value.lVal) : -1;
    }

    IAccessible* FObject = nullptr;
    VARIANT FSelf{};
};

class Accessible : public InputsTest {
private:
    test::CalendarFonts FFonts;
};

TEST_F(Accessible, ACheckBoxTellsWhatItIs) {
    auto* box = Make<TQV7SkinCheckBox>(TRect::OfSize(10, 10, 120, 17));
    box->SetCaption(L"Als &Geschenk");
    const Reader reader(*box);
    ASSERT_TRUE(reader.IsConnected());
    EXPECT_EQ(reader.Role(), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_EQ(reader.Name(), L"Als Geschenk");
    EXPECT_EQ(reader.State() & STATE_SYSTEM_CHECKED, 0);
    box->SetFocus();
    Input.KeyPress(VK_SPACE);
    EXPECT_NE(reader.State() & STATE_SYSTEM_CHECKED, 0);
    EXPECT_NE(reader.State() & STATE_SYSTEM_FOCUSED, 0);
    box->SetEnabled(false);
    EXPECT_NE(reader.State() & STATE_SYSTEM_UNAVAILABLE, 0);
}

TEST_F(Accessible, AScreenReaderChecks) {
    auto* box = Make<TQV7SkinCheckBox>(TRect::OfSize(10, 10, 120, 17));
    int clicks = 0;
    box->OnClick = [&](TObject*) { ++clicks; };
    const Reader reader(*box);
    EXPECT_EQ(reader.Action(), L"Check");
    EXPECT_EQ(reader.Act(), S_OK);
    EXPECT_TRUE(box->GetChecked());
    EXPECT_EQ(reader.Action(), L"Uncheck");
    EXPECT_EQ(clicks, 1);
}

TEST_F(Accessible, ARadioButtonTellsWhatItIs) {
    auto* first = Make<TQV7SkinRadioButton>(TRect::OfSize(10, 10, 120, 17));
    auto* second = Make<TQV7SkinRadioButton>(TRect::OfSize(10, 30, 120, 17));
    first->SetChecked(true);
    const Reader reader(*first);
    EXPECT_EQ(reader.Role(), ROLE_SYSTEM_RADIOBUTTON);
    EXPECT_NE(reader.State() & STATE_SYSTEM_CHECKED, 0);
    const Reader other(*second);
    EXPECT_EQ(other.Act(), S_OK);
    EXPECT_EQ(reader.State() & STATE_SYSTEM_CHECKED, 0);
    EXPECT_NE(other.State() & STATE_SYSTEM_CHECKED, 0);
}

TEST_F(Accessible, ADatePickerTellsItsDateAndWhetherItIsOpen) {
    const GermanDates german;
    auto* picker = Make<TQV7SkinDateTimePicker>(TRect::OfSize(10, 10, 150, 25));
    picker->CreateParts();
    picker->SetDate(41673);
    const Reader reader(*picker);
    EXPECT_EQ(reader.Role(), ROLE_SYSTEM_COMBOBOX);
    EXPECT_EQ(reader.Value(), L"Mo, 03.02.2014");
    EXPECT_NE(reader.State() & STATE_SYSTEM_COLLAPSED, 0);
    picker->SetDroppedDown(true);
    EXPECT_NE(reader.State() & STATE_SYSTEM_EXPANDED, 0);
    picker->GetCalendarForm()->Close();
    EXPECT_NE(reader.State() & STATE_SYSTEM_COLLAPSED, 0);
}

TEST_F(Accessible, AnswersAfterTheControlIsGone) {
    auto* box = Make<TQV7SkinCheckBox>(TRect::OfSize(10, 10, 120, 17));
    const Reader reader(*box);
    box->Free();
    EXPECT_EQ(reader.RoleResult(), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(reader.Act(), CO_E_OBJNOTCONNECTED);
}

/// The events that the process raised, by window.
class Events {
public:
    explicit Events(HWND window) {
        Instance() = this;
        FWindow = window;
        FHook = ::SetWinEventHook(EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_VALUECHANGE, nullptr, &Happened,
                                  ::GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    }
    ~Events() {
        ::UnhookWinEvent(FHook);
        Instance() = nullptr;
    }
    Events(const Events&) = delete;
    Events& operator=(const Events&) = delete;
    [[nodiscard]] bool Saw(DWORD event) const { return std::ranges::find(FSeen, event) != FSeen.end(); }

private:
    static Events*& Instance() {
        static Events* instance = nullptr;
        return instance;
    }
    static void CALLBACK Happened(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG, DWORD, DWORD) {
        if (Instance() && window == Instance()->FWindow) Instance()->FSeen.push_back(event);
    }

    std::vector<DWORD> FSeen;
    HWND FWindow;
    HWINEVENTHOOK FHook;
};

TEST_F(Accessible, ChangesAreAnnounced) {
    auto* box = Make<TQV7SkinCheckBox>(TRect::OfSize(10, 10, 120, 17));
    {
        const Events events(box->GetHandle());
        Input.ClickAt(box->GetHandle(), 5, 8);
        EXPECT_TRUE(test::PumpUntil([&] { return events.Saw(EVENT_OBJECT_STATECHANGE); }));
    }
    auto* picker = Make<TQV7SkinDateTimePicker>(TRect::OfSize(10, 40, 150, 25));
    picker->CreateParts();
    const Events events(picker->GetHandle());
    picker->SetDate(41673);
    EXPECT_TRUE(test::PumpUntil([&] { return events.Saw(EVENT_OBJECT_VALUECHANGE); }));
}

}  // namespace
