#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "designer/files/AutoSave.h"
#include "designer/files/DesignFile.h"
#include "designer/files/RecentFiles.h"
#include "designer/inspector/InspectorGrid.h"
#include "designer/inspector/PropertyEditors.h"
#include "designer/palette/PaletteStrip.h"
#include "designer/surface/DesignSurface.h"
#include "designer/window/DesignerDialogs.h"
#include "designer/window/StructureBar.h"
#include "header/UnitQV7SkinTabControl.h"
#include "header/UnitQV7SkinToolbar.h"
#include "menus/UnitQV7SkinMenus.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "platform/vcl/stdctrls/ScrollBox.h"
#include "platform/vcl/stdctrls/Timer.h"

namespace designer {

/// Where a text is no form, and why.
[[nodiscard]] String TextProblem(const TFormProblem& problem);

/// The designer's window: commands above, palette, inspector at the left, the form in the middle.
class TDesignerWindow final : public TForm {
public:
    /// Reads the window from its form file. In `userFolder` it keeps unsaved work while it lives, and the
    /// list of recent files.
    TDesignerWindow(TComponent* AOwner, std::unique_ptr<TDesignerDialogs> dialogs, const String& userFolder);
    ~TDesignerWindow() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Opens a file after asking for unsaved changes; an error is shown.
    void OpenFile(const String& name);
    /// Offers what runs that did not end in good order have left.
    void OfferLeftWork();

    /// Replaces the windows that ask for values.
    void SetValueDialogs(std::unique_ptr<TValueDialogs> dialogs) { FValueDialogs = std::move(dialogs); }
    [[nodiscard]] TDesignDocument& Document() { return FDocument; }
    [[nodiscard]] TDesignFile& File() { return FFile; }
    [[nodiscard]] TDesignSurface& Surface() { return *FSurface; }
    [[nodiscard]] TInspectorGrid& Grid() { return *FGrid; }
    [[nodiscard]] TPaletteStrip& Strip() { return *FStrip; }
    [[nodiscard]] TQV7SkinSimpleTabControl& PaletteTabs() { return *FPaletteTabs; }
    [[nodiscard]] TMemo& TextMemo() { return *FTextMemo; }
    [[nodiscard]] TQV7SkinExplorerBar& Structure() { return *FStructure; }
    [[nodiscard]] TQV7SkinMainMenu& MainMenu() { return *FMenu; }
    [[nodiscard]] String Status() const { return FStatus->GetCaption(); }
    [[nodiscard]] bool ShowsText() const { return FTextMemo->GetVisible(); }

    // Commands (DesignerCommands.cpp). Errors are shown.
    void NewForm();
    /// Begins with a form that inherits the one in a file that the user chooses.
    void NewInheritingForm();
    void Open();
    /// False when it was not saved.
    bool Save();
    bool SaveAs();
    void Undo();
    void Redo();
    void Cut();
    /// False when there was nothing to copy, or it failed.
    bool Copy();
    void Paste();
    void Delete();
    void ChooseAll();
    void RenameChosen();
    void EditTabOrder();
    /// Opens the window for what lies in the chosen component, when there is one (`EditComponent`).
    void EditChosen();
    /// Switches between the form and its text. Stays with a text that can't be parsed.
    void ToggleText();
    void Preview();
    /// Goes between the form and the inspector.
    void SwitchFocus();
    void ShowKeys();

private:
    // DesignerWindow.cpp
    void MakeToolbar();
    void MakePalette();
    void MakeInspector();
    void ShowPalettePage(const TRegisteredPage& page);
    void DocumentChanged();
    void SelectionChanged();
    void ShowFigures(const TRect& place);
    void ShowStatus(const String& text) { FStatus->SetCaption(L"  " + text); }
    void UpdateTitle();
    void StripChoose(TObject* sender);
    void ToolUsed();
    void StripPlace(TObject* sender);
    void TextExit(TObject* sender);
    void ShowChosen();
    void OpenItem(TComponent* item);
    void ShowContextMenu(TPoint screen);
    void ClockTimer(TObject* sender);
    bool KeepWork();
    void GiveUpKeptWork();
    void KeepWorkInTime();
    void TextChange(TObject* sender);
    void WindowActivate(TObject* sender);
    bool LookAtDisk();
    void ReloadFile();
    void WindowCloseQuery(TObject* sender, bool& canClose);

    // DesignerMenu.cpp
    void MakeMenu();
    void MakeContextMenu();
    void AddArrangeItems(TMenuItem& parent);
    void AddViewItems(TMenuItem& parent);
    void UpdateMenu(TObject* sender);
    void LimitDeleteKey(TObject* sender);
    void RestoreDeleteKey(TObject* sender);
    void UpdateRecentFiles(TObject* sender);

    // DesignerCommands.cpp
    /// False when the command raised an error, which was shown.
    bool Try(const std::function<void()>& command);
    /// The same for a change to the form: text that was typed becomes the form first.
    bool TryEdit(const std::function<void()>& command);
    [[nodiscard]] TWinControl& PlaceForNew();
    void ReloadAncestors();
    void ShowProblems();
    void OpenRecentFile(const String& name);
    [[nodiscard]] bool MayLeave();
    [[nodiscard]] bool AcceptText();
    [[nodiscard]] bool OfferToDiscardText(const String& reason);
    void ShowTextPosition(TFormPosition position);
    void ShowText();
    void AllowOtherEdits(bool value);

    std::unique_ptr<TDesignerDialogs> FDialogs;
    std::unique_ptr<TValueDialogs> FValueDialogs;
    TDesignDocument FDocument;
    TDesignFile FFile;
    TPropertyList FProperties;
    TPropertyList FEvents;
    TAutoSave FAutoSave;
    TRecentFiles FRecent;
    std::optional<std::string> FKept;       ///< What the autosave holds.
    std::optional<std::string> FTypedText;  ///< What was typed into the text and could last be parsed.
    std::optional<ULONGLONG> FUnkeptSince;  ///< The tick of the first edit that it does not hold.

    TQV7SkinToolbar* FToolbar = nullptr;
    TQV7SkinSimpleTabControl* FPaletteTabs = nullptr;
    TPaletteStrip* FStrip = nullptr;
    TQV7SkinExplorerBar* FStructure = nullptr;
    std::unique_ptr<TStructureBar> FStructureBar;
    TQV7SkinSimpleTabControl* FInspectorTabs = nullptr;
    TInspectorGrid* FGrid = nullptr;
    TScrollBox* FSurfaceScroll = nullptr;
    TMemo* FTextMemo = nullptr;
    TPanel* FStatus = nullptr;
    TTimer* FClock = nullptr;
    TDesignSurface* FSurface = nullptr;
    TQV7SkinMainMenu* FMenu = nullptr;
    TQV7SkinPopupMenu* FContextMenu = nullptr;
    TMenuItem* FUndoItem = nullptr;
    TMenuItem* FRedoItem = nullptr;
    TMenuItem* FRecentItem = nullptr;
    TMenuItem* FDeleteItem = nullptr;
    std::vector<TMenuItem*> FEditItems;  ///< For components that have an editor.
    bool FUpdatingText = false;
};

}  // namespace designer
