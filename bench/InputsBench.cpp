#include "bench/Bench.h"
#include "inputs/UnitQV7SkinComboBox.h"
#include "platform/vcl/forms/Form.h"

#include <commctrl.h>

namespace {

using namespace qv7skin;

constexpr int EntryCount = 10'000;

String Entry(int index) {
    return L"Artikel " + IntToStr(index);
}

/// A shown form with a combo box of the skin above one of the system.
struct TComboBoxes {
    TComboBoxes() {
        for (int i = 0; i < EntryCount; ++i)
            Entries.push_back(Entry(i));
        Form.SetBounds(100, 100, 300, 200);
        Ours = new TQV7SkinComboBox(&Form);
        Ours->SetBounds(10, 10, 200, 25);
        Ours->SetParent(&Form);
        Ours->CreateComboBox();
        Form.Show();
        System = CreateWindowExW(0, L"COMBOBOX", L"",
                                 WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWN | CBS_HASSTRINGS, 10, 60,
                                 200, 300, Form.GetHandle(), nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(System, CB_SETMINVISIBLE, 14, 0);
    }

    void FillOurs() const {
        TStrings& items = Ours->GetItems();
        items.BeginUpdate();
        items.Clear();
        for (const String& entry : Entries)
            items.Add(entry);
        items.EndUpdate();
    }
    void FillSystem() const {
        SendMessageW(System, WM_SETREDRAW, FALSE, 0);
        SendMessageW(System, CB_RESETCONTENT, 0, 0);
        for (const String& entry : Entries)
            SendMessageW(System, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
        SendMessageW(System, WM_SETREDRAW, TRUE, 0);
    }
    void OpenOurs() const {
        Ours->GetComboBox()->SetDroppedDown(true);
        Ours->GetComboBox()->SetDroppedDown(false);
    }
    void OpenSystem() const {
        SendMessageW(System, CB_SHOWDROPDOWN, TRUE, 0);
        SendMessageW(System, CB_SHOWDROPDOWN, FALSE, 0);
    }
    void SearchOurs() const {
        const int found = Ours->GetItems().IndexOf(Entries.back());
        bench::Use(&found);
    }
    void SearchSystem() const {
        const LRESULT found = SendMessageW(System, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                           reinterpret_cast<LPARAM>(Entries.back().c_str()));
        bench::Use(&found);
    }

    std::vector<String> Entries;
    TForm Form{nullptr};
    TQV7SkinComboBox* Ours;
    HWND System;
};

void MeasureComboBox(bench::Runner& runner) {
    const char* const fill = "combo box with 10,000 entries: filled";
    const char* const open = "combo box with 10,000 entries: opened and closed";
    const char* const search = "combo box with 10,000 entries: searched";
    const char* const all = "combo box with 10,000 entries: filled, opened and searched";
    bool wanted = false;
    for (const char* row : {fill, open, search, all})
        wanted = wanted || runner.Wants(row);
    if (!wanted) return;
    const char* const peer = "the system's combo box";
    TComboBoxes both;
    both.FillOurs();
    both.FillSystem();
    runner.Row(
        fill, peer, {.Ratio = 1.1}, [&] { both.FillOurs(); }, [&] { both.FillSystem(); });
    runner.Row(
        open, peer, {.Ratio = 1.1}, [&] { both.OpenOurs(); }, [&] { both.OpenSystem(); });
    runner.Row(
        search, peer, {.Ratio = 1.1}, [&] { both.SearchOurs(); }, [&] { both.SearchSystem(); });
    runner.Row(
        all, peer, {.Ratio = 1.1},
        [&] {
            both.FillOurs();
            both.OpenOurs();
            both.SearchOurs();
        },
        [&] {
            both.FillSystem();
            both.OpenSystem();
            both.SearchSystem();
        });
}

const bench::Suite inputs("inputs", MeasureComboBox);

}  // namespace
