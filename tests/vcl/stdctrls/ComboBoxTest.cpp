#include "platform/vcl/stdctrls/ComboBox.h"

#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"

namespace {

using namespace vcl;
using test::MouseButton;
using test::PumpAll;

class ComboBox : public test::FormTest {
protected:
    TComboBox& Box(TComboBoxStyle style = csDropDown) {
        if (!FBox) {
            FBox = Make<TComboBox>(TRect::OfSize(10, 10, 120, 21));
            FBox->SetStyle(style);
            for (const wchar_t* text : {L"Alpha", L"Beta", L"Gamma"})
                FBox->GetItems().Add(text);
            PumpAll();
        }
        return *FBox;
    }

private:
    TComboBox* FBox = nullptr;
};

TEST_F(ComboBox, ChoosingAnEntryByCodeTellsNobody) {
    int told = 0;
    Box().OnChange = Box().OnClick = Box().OnSelect = [&](TObject*) { ++told; };
    Box().SetItemIndex(1);
    EXPECT_EQ(Box().GetText(), L"Beta");
    EXPECT_EQ(told, 0);
    Box().SetItemIndex(7);
    EXPECT_EQ(Box().GetItemIndex(), -1);
}

TEST_F(ComboBox, KeysChooseAndTell) {
    std::vector<String> seen;
    Box(csDropDownList).OnChange = [&](TObject*) { seen.push_back(Box().GetText()); };
    int clicks = 0;
    Box().OnClick = [&](TObject*) { ++clicks; };
    Box().SetFocus();
    Input.KeyPress(VK_DOWN);
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(seen, (std::vector<String>{L"Alpha", L"Beta"}));
    EXPECT_EQ(clicks, 2);
    Input.Type(L"g");
    EXPECT_EQ(Box().GetItemIndex(), 2);
}

TEST_F(ComboBox, TypingRaisesKeysAndChange) {
    String keys;
    int changes = 0;
    Box().OnKeyPress = [&](TObject*, wchar_t& key) {
        keys += key;
        if (key == L'x') key = L'y';
        if (key == L'q') key = 0;
    };
    Box().OnChange = [&](TObject*) { ++changes; };
    Box().SetFocus();
    EXPECT_TRUE(Box().Focused());
    EXPECT_EQ(Form().GetActiveControl(), &Box());
    Input.Type(L"axq");
    EXPECT_EQ(keys, L"axq");
    EXPECT_EQ(Box().GetText(), L"ay");
    EXPECT_EQ(changes, 2);
}

TEST_F(ComboBox, AClickIntoTheEditorFocusesTheComboBox) {
    auto* other = Make<TEdit>(TRect::OfSize(10, 60, 80, 21));
    Box();
    other->SetFocus();
    int entered = 0;
    Box().OnEnter = [&](TObject*) { ++entered; };
    Input.ClickAt(Box().EditHandle(), 4, 4);
    EXPECT_EQ(entered, 1);
    EXPECT_EQ(Form().GetActiveControl(), &Box());
    other->SetFocus();
    EXPECT_FALSE(Box().Focused());
}

TEST_F(ComboBox, F4AndAltDownOpenAndEscapeCloses) {
    int opened = 0;
    int closed = 0;
    Box().OnDropDown = [&](TObject*) { ++opened; };
    Box().OnCloseUp = [&](TObject*) { ++closed; };
    Box().SetFocus();
    Input.KeyPress(VK_F4);
    EXPECT_TRUE(Box().GetDroppedDown());
    Input.KeyPress(VK_ESCAPE);
    EXPECT_FALSE(Box().GetDroppedDown());
    Input.Chord({VK_MENU}, VK_DOWN);
    EXPECT_TRUE(Box().GetDroppedDown());
    Input.KeyPress(VK_RETURN);
    EXPECT_FALSE(Box().GetDroppedDown());
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(closed, 2);
}

TEST_F(ComboBox, TheListHasRoomForItsEntriesUpToTheCount) {
    Box().SetDropDownCount(14);
    for (int i = 0; i < 40; ++i)
        Box().GetItems().Add(IntToStr(i));
    const int height = Box().GetHeight();
    Box().SetDroppedDown(true);
    RECT list{};
    ::GetClientRect(Box().ListHandle(), &list);
    const auto entry = static_cast<int>(::SendMessageW(Box().GetHandle(), CB_GETITEMHEIGHT, 0, 0));
    EXPECT_EQ(list.bottom / entry, 14);
    EXPECT_EQ(Box().GetHeight(), height);
    Box().SetDroppedDown(false);
}

TEST_F(ComboBox, EverythingSurvivesANewWindow) {
    Box().SetItemIndex(2);
    Box().RecreateWnd();
    EXPECT_EQ(Box().GetItemIndex(), 2);
    EXPECT_EQ(Box().GetText(), L"Gamma");
    Box().SetText(L"frei");
    Box().RecreateWnd();
    EXPECT_EQ(Box().GetText(), L"frei");
    EXPECT_EQ(::SendMessageW(Box().GetHandle(), CB_GETCOUNT, 0, 0), 3);
    Box().SetItemIndex(1);
    Box().SetStyle(csDropDownList);
    EXPECT_EQ(Box().GetItemIndex(), 1);
    EXPECT_EQ(Box().GetText(), L"Beta");
}

TEST_F(ComboBox, TheWindowShowsTheListAsItIs) {
    const auto texts = [&] {
        String all;
        for (int i = 0; i < Box().GetItems().GetCount(); ++i) {
            wchar_t text[32]{};
            ::SendMessageW(Box().GetHandle(), CB_GETLBTEXT, static_cast<WPARAM>(i),
                           reinterpret_cast<LPARAM>(text));
            EXPECT_EQ(text, Box().GetItems().Get(i));
            all += String(text) + L" ";
        }
        return all;
    };
    Box().GetItems().Insert(1, L"Neu");
    EXPECT_EQ(texts(), L"Alpha Neu Beta Gamma ");
    Box().GetItems().Delete(0);
    Box().GetItems().Put(1, L"B");
    EXPECT_EQ(texts(), L"Neu B Gamma ");
    Box().GetItems().Exchange(0, 2);
    EXPECT_EQ(texts(), L"Gamma B Neu ");
    Box().SetItemIndex(0);
    Box().SetSorted(true);
    EXPECT_EQ(texts(), L"B Gamma Neu ");
    EXPECT_EQ(Box().GetItemIndex(), 1);
    Box().GetItems().Add(L"C");
    EXPECT_EQ(texts(), L"B C Gamma Neu ");
    Box().SetText(L"bleibt");
    Box().GetItems().Clear();
    EXPECT_EQ(Box().GetText(), L"bleibt");
    EXPECT_EQ(::SendMessageW(Box().GetHandle(), CB_GETCOUNT, 0, 0), 0);
}

TEST_F(ComboBox, MayBeFreedByItsEvents) {
    Box(csDropDownList).SetFocus();
    Box().OnChange = [&](TObject* sender) { delete static_cast<TComboBox*>(sender); };
    Input.KeyPress(VK_DOWN);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(ComboBox, AThousandRoundsOfOpeningLeaveNothingBehind) {
    Box().SetFocus();
    for (int round = 0; round < 1000; ++round) {
        Box().SetDroppedDown(true);
        Box().SetDroppedDown(false);
    }
    EXPECT_FALSE(Box().GetDroppedDown());
}

TEST_F(ComboBox, TheFormMayGoWhileTheListIsOpen) {
    auto form = std::make_unique<TForm>(nullptr);
    form->SetBounds(300, 300, 200, 100);
    auto* box = new TComboBox(form.get());
    box->SetParent(form.get());
    box->GetItems().Add(L"eins");
    form->Show();
    box->SetFocus();
    box->SetDroppedDown(true);
    EXPECT_TRUE(box->GetDroppedDown());
    form.reset();
    PumpAll();
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ComboBox, AContextMenuOverTheEditorIsOffered) {
    std::vector<TPoint> offered;
    Box().OnContextPopup = [&](TObject*, TPoint point, bool& handled) {
        offered.push_back(point);
        handled = true;
    };
    Input.ClickAt(Box().EditHandle(), 5, 5, MouseButton::Right);
    Box().SetFocus();
    Input.KeyPress(VK_APPS);
    ASSERT_EQ(offered.size(), 2U);
    EXPECT_TRUE(Box().GetClientRect().Contains(offered[0]));
    EXPECT_EQ(offered[1], TPoint(-1, -1));
}

TEST_F(ComboBox, TheMenuIsThatOfTheEditorWhenNobodyElseHasOne) {
    int offered = 0;
    Box().OnContextPopup = [&](TObject*, TPoint, bool&) { ++offered; };
    bool asked = false;
    Form().OnContextPopup = [&](TObject*, TPoint, bool&) { asked = true; };
    bool opened = false;
    test::When(
        [] {
            GUITHREADINFO info{};
            info.cbSize = sizeof info;
            ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
            return (info.flags & GUI_INMENUMODE) != 0;
        },
        [&] {
            opened = true;
            ::EndMenu();
        });
    Input.ClickAt(Box().EditHandle(), 5, 5, MouseButton::Right);
    EXPECT_TRUE(test::PumpUntil([&] { return opened; }));
    EXPECT_EQ(offered, 1);
    EXPECT_FALSE(asked);
}

}  // namespace
