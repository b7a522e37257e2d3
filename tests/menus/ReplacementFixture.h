#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "menus/UnitQV7SkinActnCtrls.h"
#include "platform/vcl/stdctrls/Edit.h"
#include "tests/support/FormTest.h"

namespace test {

inline constexpr GUID Identifier{0x12345678, 0x1234, 0x5678, {1, 2, 3, 4, 5, 6, 7, 8}};

/// A form with a main menu, and a bar of actions that is to mirror it.
class ReplacementTest : public FormTest {
protected:
    void SetUp() override {
        FormTest::SetUp();
        Menu = new vcl::TMainMenu(&Form());
        Manager = new vcl::TActionManager(&Form());
        Bar = Make<vcl::TActionMainMenuBar>({0, 0, 400, 24});
        Editor = Make<vcl::TEdit>({10, 80, 200, 110});
        Editor->SetFocus();
        File = AddItem(Menu->GetItems(), L"&File");
        Open = AddItem(*File, L"&Open");
        Line = AddItem(*File, L"-");
        Save = AddItem(*File, L"&Save");
        Edit = AddItem(Menu->GetItems(), L"&Edit");
        Copy = AddItem(*Edit, L"&Copy");
        More = AddItem(*Edit, L"&More");
        Deep = AddItem(*More, L"&Deep");
        for (vcl::TMenuItem* item : {File, Edit, More})
            item->OnClick = {this, &ReplacementTest::NoteOpening};
    }
    void TearDown() override {
        Replacement.reset();
        FormTest::TearDown();
    }
    vcl::TMenuItem* AddItem(vcl::TMenuItem& parent, const std::wstring& caption) {
        auto* item = new vcl::TMenuItem(&Form());
        item->SetCaption(caption);
        item->OnClick = {this, &ReplacementTest::NoteClick};
        parent.Add(item);
        return item;
    }
    void NoteClick(vcl::TObject* sender) {
        Clicked.push_back(dynamic_cast<vcl::TMenuItem&>(*sender).GetCaption());
    }
    void NoteOpening(vcl::TObject* sender) { ++Openings[dynamic_cast<vcl::TMenuItem*>(sender)]; }
    void Replace() {
        Replacement = std::make_unique<qv7skin::TMainMenuReplacement>(Menu, Manager, Bar, Identifier);
    }
    [[nodiscard]] vcl::TActionClients& Clients() { return Manager->GetActionBars().GetItem(0)->GetItems(); }
    [[nodiscard]] static std::vector<std::wstring> Captions(const vcl::TCustomActionBar& bar) {
        std::vector<std::wstring> names;
        for (const vcl::TCustomActionControl* control : bar.ActionControls())
            names.push_back(control->ItemCaption());
        return names;
    }
    [[nodiscard]] std::size_t Levels() const { return Bar->OpenMenus().size(); }
    [[nodiscard]] vcl::TActionPopupMenu& OpenMenu(std::size_t level = 0) const {
        return *Bar->OpenMenus()[level];
    }

    vcl::TMainMenu* Menu = nullptr;
    vcl::TActionManager* Manager = nullptr;
    vcl::TActionMainMenuBar* Bar = nullptr;
    vcl::TEdit* Editor = nullptr;
    vcl::TMenuItem *File = nullptr, *Open = nullptr, *Line = nullptr, *Save = nullptr;
    vcl::TMenuItem *Edit = nullptr, *Copy = nullptr, *More = nullptr, *Deep = nullptr;
    std::unique_ptr<qv7skin::TMainMenuReplacement> Replacement;
    std::vector<std::wstring> Clicked;
    std::map<vcl::TMenuItem*, int> Openings;
};

}  // namespace test
