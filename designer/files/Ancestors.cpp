#include "designer/files/Ancestors.h"

#include <algorithm>
#include <span>

#include "designer/files/FileNames.h"
#include "designer/files/SafeFile.h"
#include "platform/vcl/streaming/FormErrors.h"
#include "platform/vcl/streaming/FormFiles.h"

namespace designer {
namespace {

/// Forms that inherit each other in a circle end here.
constexpr std::size_t LongestChain = 50;

struct TFound {
    String FileName;
    TFormDocument Document;
};

TFormDocument Parsed(const String& fileName) {
    const std::string bytes = ReadWholeFile(fileName);
    return ParseForm(std::as_bytes(std::span(bytes)), fileName);
}

bool IsSameFile(const String& a, const String& b) {
    return SameText(FileTitle(a), FileTitle(b));
}

/// The forms in the files beside `fileName`; what can't be read is none.
std::vector<TFound> FormsBeside(const String& fileName) {
    std::vector<TFound> forms;
    const String folder = FileFolder(fileName);
    WIN32_FIND_DATAW data{};
    const HANDLE search = ::FindFirstFileW((folder + L"*.dfm").c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) return forms;
    do {
        const String name = folder + data.cFileName;
        if (IsSameFile(name, fileName)) continue;
        try {
            forms.push_back({name, Parsed(name)});
        } catch (const Exception&) {
            continue;
        }
    } while (::FindNextFileW(search, &data));
    ::FindClose(search);
    std::ranges::sort(forms, {}, &TFound::FileName);
    return forms;
}

bool IsInherited(const TFormObject& object) {
    return object.Kind == TFormObjectKind::Inherited;
}

/// The inherited components in the object, in the order of the file.
void CollectInherited(const TFormObject& object, std::vector<const TFormObject*>& inherited) {
    for (const TFormObject& child : object.Children) {
        if (IsInherited(child)) inherited.push_back(&child);
        CollectInherited(child, inherited);
    }
}

/// The first component of those that the form, or what it inherits in turn, does not have.
const TFormObject* FirstMissing(const std::vector<const TFormObject*>& wanted, const TFormObject& form) {
    const auto has = [&form](const TFormObject* object) {
        const TFormObject* found = form.FindObject(object->Name);
        return found && SameText(found->ClassName, object->ClassName);
    };
    // A form that inherits others may have more than its own file says.
    if (IsInherited(form)) return nullptr;
    const auto missing = std::ranges::find_if_not(wanted, has);
    return missing == wanted.end() ? nullptr : *missing;
}

/// True for a form that takes components from this one, which can't be what it inherits.
bool Descends(const TFormObject& form, const TFormObject& from) {
    std::vector<const TFormObject*> inherited;
    CollectInherited(form, inherited);
    return std::ranges::any_of(inherited, [&from](const TFormObject* object) {
        const TFormObject* own = from.FindObject(object->Name);
        return own && !IsInherited(*own);
    });
}

[[noreturn]] void RaiseMissing(const TFormDocument& document, const TFormObject* missing) {
    String text = L"Das Formular, von dem dieses erbt, fehlt: keine Formulardatei daneben ";
    text +=
        missing ? Format(L"enthält %s: %s", missing->Name, missing->ClassName) : String(L"kommt in Frage");
    throw EFormError({.Kind = TFormProblemKind::MissingAncestor,
                      .FileName = document.FileName,
                      .Position = missing ? missing->Position : document.Root.Position,
                      .Path = document.Root.Name,
                      .Property = {},
                      .Text = text});
}

class TChain {
public:
    TChain(const TAncestorChoice& choose, std::vector<TFormDocument>& chain)
        : FChoose(choose), FChain(chain) {}

    /// Puts the ancestors of the form before the others.
    void Add(const TFormDocument& document, const String& fileName) {
        if (!IsInherited(document.Root)) return;
        FSeen.push_back(fileName);
        const TFound ancestor = AncestorOf(document, fileName);
        FChain.insert(FChain.begin(), ancestor.Document);
        if (FChain.size() > LongestChain) RaiseMissing(document, nullptr);
        Add(ancestor.Document, ancestor.FileName);
    }

private:
    TFound AncestorOf(const TFormDocument& document, const String& fileName) {
        std::vector<const TFormObject*> wanted;
        CollectInherited(document.Root, wanted);
        std::vector<TFound> forms = FormsBeside(fileName);
        std::erase_if(forms, [&](const TFound& form) {
            return Descends(form.Document.Root, document.Root) ||
                   SameText(form.Document.Root.ClassName, document.Root.ClassName) ||
                   std::ranges::any_of(FSeen, [&](const String& s) { return IsSameFile(s, form.FileName); });
        });
        const TFormObject* missing = wanted.empty() ? nullptr : wanted.front();
        for (const TFound& form : forms)
            if (const TFormObject* m = FirstMissing(wanted, form.Document.Root)) missing = m;
        std::erase_if(forms, [&](const TFound& form) { return FirstMissing(wanted, form.Document.Root); });
        if (forms.empty()) RaiseMissing(document, missing);
        return forms.size() == 1 ? forms.front() : Chosen(forms);
    }

    [[nodiscard]] TFound Chosen(const std::vector<TFound>& forms) const {
        std::vector<String> names;
        for (const TFound& form : forms)
            names.push_back(form.FileName);
        const std::optional<String> name = FChoose ? FChoose(names) : std::nullopt;
        if (!name) throw EAbort(L"Operation aborted");
        return *std::ranges::find(forms, *name, &TFound::FileName);
    }

    const TAncestorChoice& FChoose;
    std::vector<TFormDocument>& FChain;
    std::vector<String> FSeen;
};

}  // namespace

std::vector<TFormDocument> FindAncestors(const TFormDocument& document, const String& fileName,
                                         const TAncestorChoice& choose) {
    std::vector<TFormDocument> chain;
    TChain(choose, chain).Add(document, fileName);
    return chain;
}

std::vector<TFormDocument> ChainOf(const String& fileName, const TAncestorChoice& choose) {
    const TFormDocument document = Parsed(fileName);
    std::vector<TFormDocument> chain = FindAncestors(document, fileName, choose);
    chain.push_back(document);
    return chain;
}

}  // namespace designer
