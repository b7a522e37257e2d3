#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "designer/files/Ancestors.h"
#include "designer/model/DesignDocument.h"
#include "platform/vcl/streaming/FormFiles.h"

namespace designer {

/// What other programs have done to a file.
enum class TDiskChange { None, Written, Gone };

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
    /// Begins with a text that an earlier run left behind under what `KeptName` was: the state counts as not
    /// saved. The file as it is on the disk lies before it, when it can be read.
    void Recover(const String& name, const std::string& text);
    /// Writes the form in the format in which it was read. Only with a name.
    void Save() { SaveAs(FName); }
    /// Writes the form under another name, which it has from then on: text, unless it was read from a binary
    /// file of that name. Raises EFCreateError and EWriteError.
    void SaveAs(const String& name);

    /// The name under which unsaved work is kept: the file's, or, for a form that has none, the folder of the
    /// form that it inherits with a backslash behind it.
    [[nodiscard]] String KeptName() const;

    /// What other programs have done to the file since this was asked last.
    [[nodiscard]] TDiskChange NoticeChangeOnDisk();
    /// The file of a form that this one inherits, written by another program since this was asked last; empty
    /// when there is none.
    [[nodiscard]] String NoticeChangeOfAncestor();
    /// Reads the forms that this one inherits once more, from the same files. What this form says itself
    /// stays, with the edits so far. Raises what `Open` does.
    void ReloadAncestors();

private:
    /// A file and when it was written last.
    struct TWatched {
        String Name;
        unsigned long long Time = 0;
    };
    struct TFormat {
        TFormFormat Kind = TFormFormat::Text;
        std::optional<String> ResourceName;  ///< Of a binary form with the header of a resource file.
    };

    static TFormat FormatOf(std::span<const std::byte> bytes);
    [[nodiscard]] static std::vector<TWatched> Watch(const std::vector<TFormDocument>& forms);
    void Adopt(TWatched file, TFormat format, std::vector<TWatched> ancestors);
    [[nodiscard]] bool OpenIfReadable(const String& name);
    [[nodiscard]] std::vector<std::byte> Bytes(const TFormat& format) const;

    TDesignDocument& FDocument;
    String FName;
    TFormat FFormat;
    unsigned long long FTime = 0;
    std::vector<TWatched> FAncestors;  ///< The oldest first.
};

}  // namespace designer
