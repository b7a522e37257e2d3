#include "designer/inspector/PropertyEditors.h"

#include <commdlg.h>

#include <array>

#include "designer/dialogs/DialogParts.h"
#include "designer/dialogs/ItemsDialog.h"
#include "designer/inspector/PropertyText.h"
#include "platform/vcl/core/Collection.h"
#include "platform/vcl/core/StringList.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/Graphic.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Memo.h"

namespace designer {
namespace {

TPersistent* HeldBy(const TPropertyLine& line, const TPersistent& holder) {
    return line.Row->Kind() == TPropertyKind::Nested
               ? std::get<TPersistent*>(RowFor(*line.Row, holder).Get(holder))
               : nullptr;
}

/// Runs a change on what each of the components holds, as one edit.
template <class Held, class Change>
void EditHeld(TDesignDocument& document, const TPropertyLine& line, Change change) {
    document.Edit(L"Eigenschaft ändern", [&] {
        for (TPersistent* holder : line.Holders)
            if (auto* held = dynamic_cast<Held*>(HeldBy(line, *holder))) change(*held);
    });
}

void EditFont(TDesignDocument& document, const TPropertyLine& line, const TFont& present,
              TValueDialogs& dialogs) {
    TFont font;
    font.Assign(&present);
    if (dialogs.AskFont(font)) EditHeld<TFont>(document, line, [&](TFont& held) { held.Assign(&font); });
}

void EditLines(TDesignDocument& document, const TPropertyLine& line, const TStrings& present,
               TValueDialogs& dialogs) {
    if (const auto text = dialogs.AskLines(present.GetText()))
        EditHeld<TStrings>(document, line, [&](TStrings& held) { held.SetText(*text); });
}

template <class Held>
void EditPicture(TDesignDocument& document, const TPropertyLine& line, const wchar_t* extensions,
                 TValueDialogs& dialogs) {
    if (const auto file = dialogs.AskPicture(extensions))
        EditHeld<Held>(document, line, [&](Held& held) { held.LoadFromFile(*file); });
}

bool IsColor(const TPropertyLine& line) {
    return line.Row->Kind() == TPropertyKind::Integer && IsColorProperty(*line.Row);
}

void EditColor(TDesignDocument& document, const TPropertyLine& line, TValueDialogs& dialogs) {
    const auto present = static_cast<TColor>(std::get<std::int64_t>(line.Row->Get(*line.Holders.front())));
    const auto color = dialogs.AskColor(present);
    if (!color) return;
    document.Edit(L"Eigenschaft ändern", [&] {
        for (TPersistent* holder : line.Holders)
            RowFor(*line.Row, *holder).Set(*holder, static_cast<std::int64_t>(*color));
    });
}

void EditCollection(TDesignDocument& document, const TPropertyLine& line, TValueDialogs& dialogs) {
    if (const auto* component = dynamic_cast<const TComponent*>(line.Holders.front()))
        EditItems(*MakeCollectionTree(document, component->GetName(), line.Row->Name()), dialogs);
}

/// Asks for files. Of several the system names the folder first, then each file in it.
std::vector<String> AskPictureFiles(const String& extensions, DWORD flags) {
    String filter = L"Bilder (" + extensions + L")";
    filter.push_back(L'\0');
    filter += extensions;
    filter.push_back(L'\0');
    std::array<wchar_t, 32'768> names{};
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = ::GetActiveWindow();
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = names.data();
    dialog.nMaxFile = static_cast<DWORD>(names.size());
    dialog.Flags = flags | OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
    if (!::GetOpenFileNameW(&dialog)) return {};
    std::vector<String> files;
    const wchar_t* name = names.data();
    const String first = name;
    for (name += first.size() + 1; *name; name += String(name).size() + 1)
        files.push_back(first + L"\\" + name);
    if (files.empty()) files.push_back(first);
    return files;
}

}  // namespace

bool TValueDialogs::AskFont(TFont& font) {
    LOGFONTW logFont = font.GetLogFont();
    CHOOSEFONTW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = ::GetActiveWindow();
    dialog.lpLogFont = &logFont;
    dialog.rgbColors = static_cast<COLORREF>(ColorToRGB(font.GetColor()));
    dialog.Flags = CF_INITTOLOGFONTSTRUCT | CF_SCREENFONTS | CF_EFFECTS;
    if (!::ChooseFontW(&dialog)) return false;
    font.SetLogFont(logFont);
    font.SetColor(static_cast<TColor>(dialog.rgbColors));
    return true;
}

std::optional<TColor> TValueDialogs::AskColor(TColor present) {
    static std::array<COLORREF, 16> own = [] {
        std::array<COLORREF, 16> white{};
        white.fill(RGB(255, 255, 255));
        return white;
    }();
    CHOOSECOLORW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = ::GetActiveWindow();
    dialog.rgbResult = static_cast<COLORREF>(ColorToRGB(present));
    dialog.lpCustColors = own.data();
    dialog.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (!::ChooseColorW(&dialog)) return std::nullopt;
    return static_cast<TColor>(dialog.rgbResult);
}

std::optional<String> TValueDialogs::AskLines(const String& present) {
    TForm form(nullptr);
    PrepareDialog(form, L"Zeilen", {420, 300}, true);
    auto* memo = new TMemo(&form);
    memo->SetBounds(DialogMargin, DialogMargin, 420 - 2 * DialogMargin,
                    300 - 3 * DialogMargin - DialogButtonHeight);
    memo->SetAnchors({akLeft, akTop, akRight, akBottom});
    memo->SetScrollBars(ssBoth);
    memo->SetText(present);
    memo->SetParent(&form);
    // The text takes both keys for itself otherwise.
    memo->OnKeyDown = [&form](TObject*, WORD& key, TShiftState shift) {
        if (key == VK_ESCAPE) form.SetModalResult(mrCancel);
        if (key == VK_RETURN && shift.Contains(ssCtrl)) form.SetModalResult(mrOk);
    };
    form.SetActiveControl(memo);
    AddOkAndCancel(form);
    if (form.ShowModal() != mrOk) return std::nullopt;
    return memo->GetText();
}

std::optional<String> TValueDialogs::AskPicture(const String& extensions) {
    const std::vector<String> files = AskPictureFiles(extensions, 0);
    return files.empty() ? std::nullopt : std::optional(files.front());
}

std::vector<String> TValueDialogs::AskPictures() {
    return AskPictureFiles(AllPictures, OFN_ALLOWMULTISELECT);
}

bool HasValueEditor(const TPropertyLine& line) {
    if (line.Element >= 0) return false;
    if (IsColor(line)) return true;
    const TPersistent* held = HeldBy(line, *line.Holders.front());
    return dynamic_cast<const TFont*>(held) || dynamic_cast<const TStrings*>(held) ||
           dynamic_cast<const TPicture*>(held) || dynamic_cast<const TGraphic*>(held) ||
           (dynamic_cast<const TCollection*>(held) && line.Holders.size() == 1);
}

void EditValue(TDesignDocument& document, const TPropertyLine& line, TValueDialogs& dialogs) {
    if (IsColor(line)) return EditColor(document, line, dialogs);
    TPersistent* held = HeldBy(line, *line.Holders.front());
    if (const auto* font = dynamic_cast<TFont*>(held)) return EditFont(document, line, *font, dialogs);
    if (const auto* lines = dynamic_cast<TStrings*>(held)) return EditLines(document, line, *lines, dialogs);
    if (dynamic_cast<TCollection*>(held)) return EditCollection(document, line, dialogs);
    if (dynamic_cast<TPicture*>(held))
        return EditPicture<TPicture>(document, line, TValueDialogs::AllPictures, dialogs);
    if (const auto* graphic = dynamic_cast<TGraphic*>(held)) {
        const bool isIcon = SameText(graphic->ClassName(), L"TIcon");
        EditPicture<TGraphic>(document, line, isIcon ? L"*.ico" : L"*.bmp", dialogs);
    }
}

}  // namespace designer
