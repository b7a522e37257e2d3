#include "designer/inspector/PropertyEditors.h"

#include <commdlg.h>

#include <array>

#include "buttons/UnitQV7SkinButton.h"
#include "platform/vcl/core/StringList.h"
#include "platform/vcl/forms/Form.h"
#include "platform/vcl/graphics/Font.h"
#include "platform/vcl/graphics/Graphic.h"
#include "platform/vcl/graphics/Picture.h"
#include "platform/vcl/stdctrls/Memo.h"

namespace designer {
namespace {

constexpr wchar_t AllPictures[] = L"*.bmp;*.png;*.jpg;*.jpeg;*.ico";

TPersistent* HeldBy(const TPropertyLine& line, const TPersistent& holder) {
    return line.Row->Kind() == TPropertyKind::Nested ? std::get<TPersistent*>(line.Row->Get(holder))
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
    return line.Row->Kind() == TPropertyKind::Integer && SameText(line.Name, L"Color");
}

void EditColor(TDesignDocument& document, const TPropertyLine& line, TValueDialogs& dialogs) {
    const auto present = static_cast<TColor>(std::get<std::int64_t>(line.Row->Get(*line.Holders.front())));
    const auto color = dialogs.AskColor(present);
    if (!color) return;
    document.Edit(L"Eigenschaft ändern", [&] {
        for (TPersistent* holder : line.Holders)
            line.Row->Set(*holder, static_cast<std::int64_t>(*color));
    });
}

void AddDialogButton(TForm& form, int left, const wchar_t* caption, TModalResult result) {
    auto* button = new TQV7SkinButton(&form);
    button->SetCaption(caption);
    button->SetBounds(left, form.GetClientHeight() - 35, 90, 25);
    button->SetAnchors({akRight, akBottom});
    button->SetModalResult(result);
    button->SetCancel(result == mrCancel);
    button->SetParent(&form);
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
    static std::array<COLORREF, 16> own{};
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
    form.SetCaption(L"Zeilen");
    form.SetClientWidth(420);
    form.SetClientHeight(300);
    form.SetPosition(poScreenCenter);
    auto* memo = new TMemo(&form);
    memo->SetBounds(10, 10, 400, 245);
    memo->SetAnchors({akLeft, akTop, akRight, akBottom});
    memo->SetScrollBars(ssBoth);
    memo->SetText(present);
    memo->SetParent(&form);
    AddDialogButton(form, 224, L"OK", mrOk);
    AddDialogButton(form, 320, L"Abbrechen", mrCancel);
    if (form.ShowModal() != mrOk) return std::nullopt;
    return memo->GetText();
}

std::optional<String> TValueDialogs::AskPicture(const String& extensions) {
    String filter = L"Bilder (" + extensions + L")";
    filter.push_back(L'\0');
    filter += extensions;
    filter.push_back(L'\0');
    std::array<wchar_t, 32'768> name{};
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = ::GetActiveWindow();
    dialog.lpstrFilter = filter.c_str();
    dialog.lpstrFile = name.data();
    dialog.nMaxFile = static_cast<DWORD>(name.size());
    dialog.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
    if (!::GetOpenFileNameW(&dialog)) return std::nullopt;
    return String(name.data());
}

bool HasValueEditor(const TPropertyLine& line) {
    if (line.Element >= 0) return false;
    if (IsColor(line)) return true;
    const TPersistent* held = HeldBy(line, *line.Holders.front());
    return dynamic_cast<const TFont*>(held) || dynamic_cast<const TStrings*>(held) ||
           dynamic_cast<const TPicture*>(held) || dynamic_cast<const TGraphic*>(held);
}

void EditValue(TDesignDocument& document, const TPropertyLine& line, TValueDialogs& dialogs) {
    if (IsColor(line)) return EditColor(document, line, dialogs);
    TPersistent* held = HeldBy(line, *line.Holders.front());
    if (const auto* font = dynamic_cast<TFont*>(held)) return EditFont(document, line, *font, dialogs);
    if (const auto* lines = dynamic_cast<TStrings*>(held)) return EditLines(document, line, *lines, dialogs);
    if (dynamic_cast<TPicture*>(held)) return EditPicture<TPicture>(document, line, AllPictures, dialogs);
    if (const auto* graphic = dynamic_cast<TGraphic*>(held)) {
        const bool isIcon = SameText(graphic->ClassName(), L"TIcon");
        EditPicture<TGraphic>(document, line, isIcon ? L"*.ico" : L"*.bmp", dialogs);
    }
}

}  // namespace designer
