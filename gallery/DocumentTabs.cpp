#include "gallery/DocumentTabs.h"

#include <algorithm>

#include "gallery/Drawing.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/menus/MenuItem.h"
#include "platform/vcl/stdctrls/Memo.h"
#include "platform/vcl/stdctrls/Panel.h"
#include "skin/UnitQV7SkinColors.h"

namespace gallery {
namespace {

/// As high as the chevron.
constexpr int StripHeight = 21;
constexpr int FrameWidth = 1;
/// The line that joins the dark selected tab with its content.
constexpr int JointHeight = 3;
constexpr TColor WhiteLookFrame = 0x00555555;

}  // namespace

TControl* WithMargin(TWinControl* control) {
    auto* panel = new TPanel(nullptr);
    panel->SetBevelOuter(bvNone);
    panel->SetColor(clWhite);
    panel->SetBorderWidth(8);
    control->SetAlign(alClient);
    control->SetParent(panel);
    return panel;
}

TControl* MakeMemo(std::initializer_list<const wchar_t*> lines) {
    auto* memo = new TMemo(nullptr);
    memo->SetBorderStyle(bsNone);
    String text;
    for (const wchar_t* line : lines)
        text += (text.empty() ? String() : String(L"\r\n")) + line;
    memo->SetText(text);
    return WithMargin(memo);
}

const TMetaClass& TDocumentTabs::StaticClass() {
    static const TMetaClass meta = DefineClass<TDocumentTabs>(L"TDocumentTabs", TCustomControl::StaticClass())
                                       .Field(L"Look", &TDocumentTabs::Look);
    return meta;
}

TDocumentTabs::TDocumentTabs(TComponent* AOwner)
    : TCustomControl(AOwner), FTabs(new TQV7SkinTabControl(this)), FMenu(new TPopupMenu(this)) {
    ControlStyle.Include(csAcceptsControls);
    SetColor(clWhite);
    FTabs->SetHeight(StripHeight);
    FTabs->SetAlign(alTop);
    FTabs->SetParent(this);
    FTabs->SetChevronDropDown(FMenu);
    FTabs->OnQueryTabSwitch = [](TObject*, bool& allow) { allow = true; };
    FMenu->OnPopup = {this, &TDocumentTabs::FillMenu};
}

void TDocumentTabs::Loaded() {
    TCustomControl::Loaded();
    FTabs->TabBackground = Look;
    FTabs->Loaded();
}

TDocumentTabs::~TDocumentTabs() {
    FTabs->GetItems().Clear();
}

void TDocumentTabs::AlignControls(TControl* control, TRect& rect) {
    const int joint = Look == bckgrndWhite ? 0 : JointHeight;
    TCustomControl::AlignControls(control, rect);
    const TRect content(FrameWidth, StripHeight + joint, GetWidth() - FrameWidth, GetHeight() - FrameWidth);
    for (const TDocument& document : FDocuments)
        document.Content->SetBoundsRect(content);
}

void TDocumentTabs::Paint() {
    const TColor color = Look == bckgrndWhite ? WhiteLookFrame : GetQV7SkinColorColumnHeaderBG();
    Fill(GetCanvas(), GetClientRect(), clWhite);
    const TRect below(0, StripHeight - 1, GetWidth(), GetHeight());
    Outline(GetCanvas(), below, color);
    if (Look == bckgrndStandard)
        Fill(GetCanvas(), {0, StripHeight, GetWidth(), StripHeight + JointHeight}, clBlack);
}

TQV7SkinHeaderItemTabExt* TDocumentTabs::Add(const String& caption, TToolIcon icon, TControl* content) {
    std::unique_ptr<TBitmap> picture = CreateToolIcon(icon);
    auto* tab = new TQV7SkinHeaderItemTabExt(Look, caption, picture.get());
    tab->OnClick = {this, &TDocumentTabs::TabClicked};
    tab->OnClose = {this, &TDocumentTabs::TabClosed};
    content->SetVisible(false);
    content->SetParent(this);
    FDocuments.push_back({tab, std::move(picture), content});
    FTabs->GetItems().Add(tab);
    Realign();
    return tab;
}

void TDocumentTabs::Open(int index) {
    TQV7SkinHeaderItemCustom* tab = FTabs->GetItems()[index];
    tab->SetSelected(true);
    Show(tab);
}

void TDocumentTabs::AddNote() {
    const String caption = L"Notiz " + IntToStr(++FNotes);
    Add(caption, TToolIcon::Note, MakeMemo({}));
    Open(FTabs->GetItems().GetCount() - 1);
    FTabs->ScrollInView(FTabs->GetItems().GetCount() - 1);
}

void TDocumentTabs::Show(const TQV7SkinHeaderItemCustom* tab) {
    for (const TDocument& document : FDocuments)
        document.Content->SetVisible(document.Tab == tab);
}

void TDocumentTabs::TabClicked(TQV7SkinHeaderItemCustom* tab, TMouseButton, TShiftState, int, int) {
    Show(tab);
}

void TDocumentTabs::TabClosed(TQV7SkinHeaderItemCustom* tab) {
    const auto document =
        std::ranges::find_if(FDocuments, [tab](const TDocument& candidate) { return candidate.Tab == tab; });
    TControl* content = document->Content;
    FDocuments.erase(document);
    content->Free();
    // Closing the one in front brings another there.
    if (tab->GetSelected() && FTabs->GetItems().GetCount() > 0) Open(FTabs->GetItems().GetCount() - 1);
}

void TDocumentTabs::FillMenu(TObject*) {
    FMenu->GetItems().Clear();
    const TQV7SkinHeaderItems& tabs = FTabs->GetItems();
    for (int i = 0; i < tabs.GetCount(); ++i) {
        auto* entry = new TMenuItem(FMenu);
        entry->SetCaption(tabs[i]->GetCaption());
        entry->SetRadioItem(true);
        entry->SetChecked(tabs[i]->GetSelected());
        entry->OnClick = [this, i](TObject*) {
            Open(i);
            FTabs->ScrollInView(i);
        };
        FMenu->GetItems().Add(entry);
    }
}

}  // namespace gallery
