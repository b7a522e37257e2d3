#pragma once

#include "designer/files/Ancestors.h"
#include "designer/model/DesignDocument.h"
#include "platform/vcl/streaming/FormFiles.h"

namespace designer {

/// The file that a document comes from and goes to.
class TDesignFile {
public:
    /// Works on the document, which must outlive it.
    explicit TDesignFile(TDesignDocument& document) : FDocument(document) {}

    /// Empty for a form that was never saved.
    [[nodiscard]] const String& Name() const { return FName; }
    /// What a window shows: the file's name without folder.
    [[nodiscard]] String Title() const;

    /// Asked for the ancestor of a form when several files may be it.
    TAncestorChoice OnChooseAncestor;

    /// Begins with an empty form.
    void New();
    /// Begins with an empty form that inherits the one in that file. Raises what `Open` does.
    void NewInheriting(const String& ancestor);
    /// Begins with the file's form. Raises EFOpenError, EFormError, and EAbort when the user gives up
    /// choosing its ancestor; the present form stays then.
    void Open(const String& name);
    /// Begins with a text that an earlier run left behind: the state counts as not saved.
    void Recover(const String& name, const std::string& text);
    /// Writes the form in the format in which it was read. Only with a name.
    void Save() { SaveAs(FName); }
    /// Writes the form under another name, which it has from then on: text, unless it was read from a binary
    /// file of that name. Raises EFCreateError and EWriteError.
    void SaveAs(const String& name);

    /// True once after another program has written the file.
    [[nodiscard]] bool NoticeChangeOnDisk();

private:
    void Adopt(const String& name, TFormFormat format);

    TDesignDocument& FDocument;
    String FName;
    TFormFormat FFormat = TFormFormat::Text;
    unsigned long long FTime = 0;
};

}  // namespace designer
