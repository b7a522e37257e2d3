#include "designer/window/DesignerWindow.h"

#include <exception>
#include <utility>

#include "designer/dialogs/ComponentEditors.h"
#include "designer/files/FileNames.h"
#include "designer/inspector/InspectorPages.h"
#include "designer/model/Arranging.h"
#include "designer/model/Placing.h"
#include "designer/palette/PaletteIcons.h"
#include "header/UnitQV7SkinHeaderItems.h"
#include "indicators/UnitQV7SkinSplitter.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/streaming/FormResources.h"
#include "platform/vcl/streaming/FormText.h"

namespace designer {

const TMetaClass& TDesignerWindow::StaticClass() {
    using C = TDesignerWindow;
    static const TMetaClass meta = DefineClass<C>(L"TDesignerWindow", TForm::StaticClass())
                                       .Component<&C::FToolbar>(L"Toolbar")
                                       .Component<&C::FPaletteTabs>(L"PaletteTabs")
                                       .Component<&C::FStrip>(L"Strip")
                                       .Component<&C::FStructure>(L"Structure")
                                       .Component<&C::FInspectorTabs>(L"InspectorTabs")
                                       .Component<&C::FGrid>(L"Grid")
                                       .Component<&C::FSurfaceScroll>(L"SurfaceScroll")
                                       .Component<&C::FTextMemo>(L"TextMemo")
                                       .Component<&C::FStatus>(L"StatusPanel")
                                       .Component<&C::FClock>(L"Clock")
                                       .Method<&C::StripChoose>(L"StripChoose")
                                       .Method<&C::StripPlace>(L"StripPlace")
                                       .Method<&C::TextExit>(L"TextExit")
                                       .Method<&C::ClockTimer>(L"ClockTimer")
                                       .Method<&C::TextChange>(L"TextChange")
                                       .Method<&C::WindowActivate>(L"WindowActivate")
                                       .Method<&C::WindowCloseQuery>(L"WindowCloseQuery");
    return meta;
}

TDesignerWindow::TDesignerWindow(TComponent* AOwner, std::unique_ptr<TDesignerDialogs> dialogs,
                                 const String& userFolder)
    : TForm(AOwner),
      FDialogs(std::move(dialogs)),
      FValueDialogs(std::make_unique<TValueDialogs>()),
      FFile(FDocument),
      FProperties(FDocument, TPropertyList::TKind::Properties),
      FEvents(FDocument, TPropertyList::TKind::Events),
      FAutoSave(userFolder),
      FRecent(userFolder) {
    RegisterClasses({&TPaletteStrip::StaticClass(), &TInspectorGrid::StaticClass(),
                     &TQV7SkinToolbar::StaticClass(), &TQV7SkinSimpleTabControl::StaticClass(),
                     &TQV7SkinSplitter::StaticClass()});
    InitInheritedComponent(*this, TForm::StaticClass());
    FStructureBar = std::make_unique<TStructureBar>(*FStructure, FDocument);
    FSurface = new TDesignSurface(this, FDocument);
    FSurface->SetParent(FSurfaceScroll);
    FSurface->OnToolUsed = {this, &TDesignerWindow::ToolUsed};
    FSurface->OnToolLeft = [this] { FStrip->SetChosen(nullptr); };
    FSurface->OnKeyDown = [this](TObject*, WORD& key, TShiftState) {
        if (key != VK_RETURN || FSurface->GetMouseCapture()) return;
        key = 0;
        SwitchFocus();
    };
    FSurface->OnOpenItem = {this, &TDesignerWindow::OpenItem};
    FSurface->OnMenu = {this, &TDesignerWindow::ShowContextMenu};
    FSurface->OnRefused = [this](const String& message) { FDialogs->ShowError(message); };
    FSurface->OnDragged = {this, &TDesignerWindow::ShowFigures};
    FFile.OnChooseAncestor = [this](const std::vector<String>& files) {
        return FDialogs->AskAncestor(files);
    };
    FDocument.OnChange = {this, &TDesignerWindow::DocumentChanged};
    FDocument.Selection().OnChange = {this, &TDesignerWindow::SelectionChanged};
    MakeMenu();
    MakeContextMenu();
    MakeToolbar();
    MakePalette();
    MakeInspector();
    DocumentChanged();
    ShowChosen();
    SetActiveControl(FSurface);
}

TDesignerWindow::~TDesignerWindow() {
    FGrid->SetList(nullptr);
    FDocument.OnChange.Clear();
    FDocument.Selection().OnChange.Clear();
    // The surface looks after the document's form to its end.
    delete std::exchange(FSurface, nullptr);
    ForgetPaletteIcons();
}

void TDesignerWindow::MakeToolbar() {
    const auto add = [this](const wchar_t* caption, void (TDesignerWindow::*command)()) {
        auto* button = new TQV7SkinToolbutton(caption);
        button->OnClick = [this, command](TQV7SkinHeaderItemCustom*, TMouseButton mouse, TShiftState, int,
                                          int) {
            if (mouse == mbLeft) (this->*command)();
        };
        FToolbar->GetItems().Add(button);
    };
    add(L"Neu", &TDesignerWindow::NewForm);
    add(L"Öffnen", &TDesignerWindow::Open);
    auto* save = new TQV7SkinToolbutton(L"Speichern");
    save->OnClick = [this](TQV7SkinHeaderItemCustom*, TMouseButton mouse, TShiftState, int, int) {
        if (mouse == mbLeft) Save();
    };
    FToolbar->GetItems().Add(save);
    add(L"Rückgängig", &TDesignerWindow::Undo);
    add(L"Wiederholen", &TDesignerWindow::Redo);
    add(L"Als Text", &TDesignerWindow::ToggleText);
    add(L"Vorschau", &TDesignerWindow::Preview);
}

void TDesignerWindow::MakePalette() {
    for (const TRegisteredPage& page : RegisteredPages()) {
        auto* tab = MakeTab(page.Name);
        tab->OnClick = [this, page](TQV7SkinHeaderItemCustom*, TMouseButton, TShiftState, int, int) {
            ShowPalettePage(page);
        };
        FPaletteTabs->GetItems().Add(tab);
    }
    if (FPaletteTabs->GetItems().GetCount() > 0) FPaletteTabs->GetItems()[0]->Click(mbLeft, {}, 1, 1);
}

void TDesignerWindow::ShowPalettePage(const TRegisteredPage& page) {
    FStrip->SetClasses(page.Classes);
    FSurface->SetTool(nullptr);
}

void TDesignerWindow::MakeInspector() {
    AddInspectorPages(*FInspectorTabs, *FGrid, FProperties, FEvents);
    FGrid->OnRefused = [this](const String& message) { FDialogs->ShowError(message); };
    FGrid->OnEditValue = [this](const TPropertyLine& line) {
        Try([&] { EditValue(FDocument, TPropertyLine(line), *FValueDialogs); });
    };
}

// --- what has changed

void TDesignerWindow::DocumentChanged() {
    FTypedText.reset();
    FProperties.Refresh();
    FEvents.Refresh();
    FGrid->UpdateLines();
    FStructureBar->UpdateComponents();
    FSurface->UpdateMarks();
    if (ShowsText()) ShowText();
    UpdateTitle();
    KeepWorkInTime();
}

void TDesignerWindow::SelectionChanged() {
    FGrid->Accept();
    FProperties.Refresh();
    FEvents.Refresh();
    FGrid->UpdateLines();
    FStructureBar->UpdateSelection();
    FSurface->UpdateMarks();
    ShowChosen();
}

void TDesignerWindow::ShowChosen() {
    const TSelection& selection = FDocument.Selection();
    const TDesignRoot& root = FDocument.Root();
    if (selection.Items().size() == 1)
        ShowFigures(PlaceOf(*selection.Leader()));
    else if (selection.IsEmpty())
        ShowStatus(Format(L"%s  –  %d × %d", root.GetName(), root.GetWidth(), root.GetHeight()));
    else
        ShowStatus(Format(L"%d Komponenten, voran %s", static_cast<int>(selection.Items().size()),
                          selection.Leader()->GetName()));
}

void TDesignerWindow::ShowFigures(const TRect& place) {
    const TComponent* leader = FDocument.Selection().Leader();
    String text = Format(L"%s: %d, %d", leader ? leader->GetName() : String(), place.Left, place.Top);
    // What stands on the form as an icon has no size.
    if (place.Width() > 0 || place.Height() > 0)
        text += Format(L"  –  %d × %d", place.Width(), place.Height());
    ShowStatus(text);
}

void TDesignerWindow::UpdateTitle() {
    SetCaption(Format(L"%s%s – QV7 Designer", FDocument.IsModified() ? L"* " : L"", FFile.Title()));
}

void TDesignerWindow::StripChoose(TObject*) {
    FSurface->SetTool(FStrip->GetChosen());
}

void TDesignerWindow::ToolUsed() {
    if (FStrip->KeepsChosen())
        FSurface->SetTool(FStrip->GetChosen());
    else
        FStrip->SetChosen(nullptr);
}

/// Puts a component of the pressed class into the middle of what is chosen.
void TDesignerWindow::StripPlace(TObject*) {
    const TMetaClass* tool = FStrip->GetChosen();
    FStrip->SetChosen(nullptr);
    FSurface->SetTool(nullptr);
    TryEdit([&] {
        FDocument.Edit(L"Einfügen", [&] {
            TWinControl& parent = PlaceForNew();
            const TPoint middle{parent.GetClientWidth() / 2, parent.GetClientHeight() / 2};
            Place(FDocument, *tool, parent, {middle.X, middle.Y, middle.X, middle.Y});
            CenterSelection(FDocument, TDirection::Horizontal);
            CenterSelection(FDocument, TDirection::Vertical);
        });
    });
}

void TDesignerWindow::OpenItem(TComponent* item) {
    if (item == &FDocument.Root())
        FDocument.Selection().Clear();
    else
        FDocument.Selection().SetOnly(item);
    if (HasComponentEditor(*item))
        EditChosen();
    else
        RenameChosen();
}

void TDesignerWindow::ShowContextMenu(TPoint screen) {
    UpdateMenu(nullptr);
    FContextMenu->Popup(screen.X, screen.Y);
}

/// Keeps unsaved work for the case that the program ends without asking. Should that fail, the status says
/// so, and the next time tries again.
bool TDesignerWindow::KeepWork() {
    FUnkeptSince.reset();
    const std::string& work = FTypedText ? *FTypedText : FDocument.Text();
    if (!FTypedText && !FDocument.IsModified()) {
        GiveUpKeptWork();
        return true;
    }
    if (FKept == work) return true;
    try {
        FAutoSave.Keep(FFile.KeptName(), work);
    } catch (const Exception& error) {
        ShowStatus(error.Message());
        return false;
    }
    FKept = work;
    return true;
}

void TDesignerWindow::GiveUpKeptWork() {
    if (FKept) FAutoSave.Discard();
    FKept.reset();
}

void TDesignerWindow::ClockTimer(TObject*) {
    if (!FSurface->GetMouseCapture()) KeepWork();
}

/// While edits come faster than they can be shown no timer runs.
void TDesignerWindow::KeepWorkInTime() {
    const ULONGLONG now = ::GetTickCount64();
    if (!FUnkeptSince)
        FUnkeptSince = now;
    else if (now - *FUnkeptSince >= static_cast<ULONGLONG>(FClock->GetInterval()))
        KeepWork();
}

/// Tells while the text is being written where it can't be parsed.
void TDesignerWindow::TextChange(TObject*) {
    if (FUpdatingText) return;
    try {
        const String text = FTextMemo->GetText();
        (void)ParseFormText(text);
        FTypedText = ToUtf8(text);
        ShowStatus(L"Der Text ist in Ordnung");
        AllowOtherEdits(true);
    } catch (const EFormError& error) {
        ShowStatus(TextProblem(error.Problem()));
        AllowOtherEdits(false);
    }
}

/// What the user does next is about the form that the text says.
void TDesignerWindow::TextExit(TObject*) {
    if (FGrid->GetEnabled()) (void)AcceptText();
}

void TDesignerWindow::WindowActivate(TObject*) {
    LookAtDisk();
}

/// Asks what to do about files that other programs have changed. True when the form's own was read anew.
bool TDesignerWindow::LookAtDisk() {
    switch (FFile.NoticeChangeOnDisk()) {
        case TDiskChange::None:
            break;
        case TDiskChange::Written:
            if (FDialogs->AskToReload(FFile.Title())) return ReloadFile(), true;
            FDocument.MarkUnsaved();
            break;
        case TDiskChange::Gone:
            FDocument.MarkUnsaved();
            ShowStatus(L"Die Datei „" + FFile.Title() + L"“ gibt es nicht mehr");
            break;
    }
    const String ancestor = FFile.NoticeChangeOfAncestor();
    if (!ancestor.empty() && FDialogs->AskToReloadAncestor(FileTitle(ancestor))) ReloadAncestors();
    return false;
}

void TDesignerWindow::ReloadFile() {
    try {
        FFile.Open(String(FFile.Name()));
        ShowProblems();
    } catch (const EAbort&) {
        FDocument.MarkUnsaved();
    } catch (const Exception& error) {
        // What is in the designer is no longer what is in the file.
        FDocument.MarkUnsaved();
        FDialogs->ShowError(error.Message());
    }
}

void TDesignerWindow::WindowCloseQuery(TObject*, bool& canClose) {
    canClose = MayLeave();
    if (canClose) GiveUpKeptWork();
}

}  // namespace designer
