#include "designer/files/DesignFile.h"

#include <algorithm>
#include <utility>

#include "designer/files/FileNames.h"
#include "designer/files/SafeFile.h"
#include "designer/model/Naming.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/streaming/FormBinary.h"
#include "platform/vcl/streaming/FormText.h"

namespace designer {
namespace {

/// True for work on a form without a file.
bool IsNew(const String& keptName) {
    return keptName.empty() || IsFileFolder(keptName);
}

}  // namespace

String TDesignFile::Title() const {
    return FName.empty() ? L"Unbenannt" : FileTitle(FName);
}

String TDesignFile::KeptName() const {
    return FName.empty() && !FAncestors.empty() ? FileFolder(FAncestors.back().Name) : FName;
}

void TDesignFile::New() {
    FDocument.BeginNew();
    Adopt({}, {}, {});
}

void TDesignFile::NewInheriting(const String& ancestor) {
    std::vector<TFormDocument> chain = ChainOf(ancestor, OnChooseAncestor);
    TFormDocument document;
    document.Root.Kind = TFormObjectKind::Inherited;
    document.Root.Name = FreeName(L"TForm", [&chain](const String& name) {
        return std::ranges::any_of(chain, [&](const auto& form) { return SameText(form.Root.Name, name); });
    });
    document.Root.ClassName = L"T" + document.Root.Name;
    std::vector<TWatched> watched = Watch(chain);
    FDocument.Begin(document, std::move(chain));
    Adopt({}, {}, std::move(watched));
}

void TDesignFile::Open(const String& name) {
    // The time first: what is written while the file is read will be noticed.
    const TWatched file{name, FileTimeOf(name)};
    const std::string text = ReadWholeFile(name);
    const auto bytes = std::as_bytes(std::span(text));
    const TFormDocument document = ParseForm(bytes, name);
    std::vector<TFormDocument> chain = FindAncestors(document, name, OnChooseAncestor);
    std::vector<TWatched> watched = Watch(chain);
    FDocument.Begin(document, std::move(chain));
    Adopt(file, FormatOf(bytes), std::move(watched));
}

bool TDesignFile::OpenIfReadable(const String& name) {
    try {
        Open(name);
        return true;
    } catch (const EFOpenError&) {
        return false;
    } catch (const EFormError&) {
        return false;
    }
}

void TDesignFile::Recover(const String& name, const std::string& text) {
    const TFormDocument document = ParseFormText(FromUtf8(text), name);
    if (IsNew(name) || !OpenIfReadable(name)) {
        std::vector<TFormDocument> chain = FindAncestors(document, name, OnChooseAncestor);
        std::vector<TWatched> watched = Watch(chain);
        if (chain.empty())
            FDocument.BeginNew();
        else
            FDocument.Begin(document, std::move(chain));
        const String file = IsNew(name) ? String() : name;
        Adopt({file, FileTimeOf(file)}, {}, std::move(watched));
    }
    FDocument.SetDocument(L"Wiederherstellen", document);
    // Even when it is no edit: the file holds something else, or there is none.
    FDocument.MarkUnsaved();
}

void TDesignFile::SaveAs(const String& name) {
    const TFormat format = SameText(name, FName) ? FFormat : TFormat();
    const std::vector<std::byte> bytes = Bytes(format);
    WriteFileSafely(name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    Adopt({name, FileTimeOf(name)}, format, std::move(FAncestors));
    FDocument.MarkSaved();
}

std::vector<std::byte> TDesignFile::Bytes(const TFormat& format) const {
    const TFormDocument document = ParseFormText(FromUtf8(FDocument.Text()));
    std::vector<std::byte> bytes = FormToBytes(document, format.Kind);
    return format.ResourceName ? WrapInResource(bytes, *format.ResourceName) : bytes;
}

TDesignFile::TFormat TDesignFile::FormatOf(std::span<const std::byte> bytes) {
    if (!IsFormBinary(bytes)) return {};
    constexpr std::size_t resourceMark = 3;
    const auto* text = reinterpret_cast<const char*>(bytes.data());
    if (text[0] == 'T') return {TFormFormat::Binary, std::nullopt};
    return {TFormFormat::Binary, FromUtf8(text + resourceMark)};
}

std::vector<TDesignFile::TWatched> TDesignFile::Watch(const std::vector<TFormDocument>& forms) {
    std::vector<TWatched> watched;
    for (const TFormDocument& form : forms)
        watched.push_back({form.FileName, FileTimeOf(form.FileName)});
    return watched;
}

void TDesignFile::Adopt(TWatched file, TFormat format, std::vector<TWatched> ancestors) {
    FName = std::move(file.Name);
    FTime = file.Time;
    FFormat = std::move(format);
    FAncestors = std::move(ancestors);
}

TDiskChange TDesignFile::NoticeChangeOnDisk() {
    if (FName.empty()) return TDiskChange::None;
    const unsigned long long time = std::exchange(FTime, FileTimeOf(FName));
    if (time == FTime) return TDiskChange::None;
    return FTime == 0 ? TDiskChange::Gone : TDiskChange::Written;
}

String TDesignFile::NoticeChangeOfAncestor() {
    String changed;
    for (TWatched& file : FAncestors) {
        const unsigned long long time = std::exchange(file.Time, FileTimeOf(file.Name));
        // One that is gone for the moment will be another when it comes back.
        if (time != file.Time && file.Time != 0) changed = file.Name;
    }
    return changed;
}

void TDesignFile::ReloadAncestors() {
    if (FAncestors.empty()) return;
    const auto choose = [this](const std::vector<String>& files) -> std::optional<String> {
        for (const TWatched& known : FAncestors)
            if (std::ranges::find(files, known.Name) != files.end()) return known.Name;
        return OnChooseAncestor ? OnChooseAncestor(files) : std::nullopt;
    };
    std::vector<TFormDocument> chain = ChainOf(FAncestors.back().Name, choose);
    std::vector<TWatched> watched = Watch(chain);
    FDocument.SetAncestors(L"Vorfahren neu laden", std::move(chain));
    FAncestors = std::move(watched);
}

}  // namespace designer
