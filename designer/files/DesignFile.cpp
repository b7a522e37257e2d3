#include "designer/files/DesignFile.h"

#include <algorithm>

#include "designer/files/SafeFile.h"
#include "designer/model/Naming.h"
#include "platform/vcl/streaming/FormText.h"

namespace designer {
namespace {

constexpr std::string_view BinarySignature = "TPF0";

}  // namespace

String TDesignFile::Title() const {
    if (FName.empty()) return L"Unbenannt";
    return FName.substr(FName.find_last_of(L"\\/") + 1);
}

void TDesignFile::New() {
    FDocument.BeginNew();
    Adopt({}, TFormFormat::Text);
}

void TDesignFile::NewInheriting(const String& ancestor) {
    std::vector<TFormDocument> chain = ChainOf(ancestor, OnChooseAncestor);
    TFormDocument document;
    document.Root.Kind = TFormObjectKind::Inherited;
    document.Root.Name = FreeName(L"TForm", [&chain](const String& name) {
        return std::ranges::any_of(chain, [&](const auto& form) { return SameText(form.Root.Name, name); });
    });
    document.Root.ClassName = L"T" + document.Root.Name;
    FDocument.Begin(document, std::move(chain));
    Adopt({}, TFormFormat::Text);
}

void TDesignFile::Open(const String& name) {
    const std::string bytes = ReadWholeFile(name);
    const TFormDocument document = ParseForm(std::as_bytes(std::span(bytes)), name);
    FDocument.Begin(document, FindAncestors(document, name, OnChooseAncestor));
    Adopt(name, bytes.starts_with(BinarySignature) ? TFormFormat::Binary : TFormFormat::Text);
}

void TDesignFile::Recover(const String& name, const std::string& text) {
    const TFormDocument document = ParseFormText(FromUtf8(text), name);
    if (!name.empty() && FileTimeOf(name) != 0)
        Open(name);
    else if (document.Root.Kind == TFormObjectKind::Inherited)
        FDocument.Begin(document, FindAncestors(document, name, OnChooseAncestor));
    else
        New();
    FDocument.SetDocument(L"Wiederherstellen", document);
    FName = name;
}

void TDesignFile::SaveAs(const String& name) {
    const TFormFormat format = SameText(name, FName) ? FFormat : TFormFormat::Text;
    if (format == TFormFormat::Text) {
        WriteFileSafely(name, FDocument.Text());
    } else {
        const std::vector<std::byte> bytes = FormToBytes(FDocument.Document(), format);
        WriteFileSafely(name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    }
    Adopt(name, format);
    FDocument.MarkSaved();
}

void TDesignFile::Adopt(const String& name, TFormFormat format) {
    FName = name;
    FFormat = format;
    FTime = name.empty() ? 0 : FileTimeOf(name);
}

bool TDesignFile::NoticeChangeOnDisk() {
    if (FName.empty()) return false;
    const unsigned long long time = FileTimeOf(FName);
    const bool changed = time != 0 && time != FTime;
    FTime = time;
    return changed;
}

}  // namespace designer
