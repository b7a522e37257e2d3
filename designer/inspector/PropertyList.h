#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "designer/model/DesignDocument.h"
#include "platform/vcl/core/PublishedProperty.h"

namespace designer {

/// A line of the object inspector: a property of all chosen components, of an object that they hold, or one
/// element of a set.
struct TPropertyLine {
    String Path;  ///< "Font.Style.fsBold"; unique in the list.
    String Name;  ///< Its last part.
    int Depth = 0;
    const TPublishedProperty* Row = nullptr;
    int Element = -1;                   ///< Ordinal of the element of a set, or -1.
    std::vector<TPersistent*> Holders;  ///< Whose property it is, one for each chosen component.
    std::vector<TPersistent*> Models;   ///< The same objects of new components.
    String Text;
    bool IsMixed = false;   ///< The components have different values; `Text` is empty.
    bool IsDefault = true;  ///< A form file leaves the value out, or it is the one that a new component has.
    bool IsReadOnly = false;
    bool CanExpand = false;
    bool IsExpanded = false;
};

/// The property of that name in the object's own class: several chosen components may have rows of their own.
[[nodiscard]] const TPublishedProperty& RowFor(const TPublishedProperty& row, const TPersistent& object);

/// What the object inspector shows and changes: the published properties, or events, that all chosen
/// components have in common; without a choice those of the form.
class TPropertyList {
public:
    enum class TKind { Properties, Events };

    TPropertyList(TDesignDocument& document, TKind kind) : FDocument(document), FKind(kind) {}

    /// Shows what the function returns instead of the chosen components; nothing while it returns null.
    void SetSubject(std::function<TPersistent*()> subject) { FSubject = std::move(subject); }
    /// Reads all values anew.
    void Refresh();
    /// Forgets all components, before they are made anew.
    void Clear() { FLines.clear(); }
    [[nodiscard]] const std::vector<TPropertyLine>& Lines() const { return FLines; }
    /// The line of that path, or null.
    [[nodiscard]] const TPropertyLine* Find(StringView path) const;
    /// Shows or hides what lies in the property; stays so for other components.
    void SetExpanded(const String& path, bool value);
    /// The texts to choose from; empty when there are none.
    [[nodiscard]] std::vector<String> Choices(const TPropertyLine& line) const;

    /// Gives the property the value of the text in all chosen components, as one edit. Raises EConvertError
    /// for a text that is no value, EComponentError for a name that can't be, and what setters raise; the
    /// form is as before then.
    void SetText(const String& path, const String& text);
    /// Gives it the value that a new component has.
    void Reset(const String& path);

private:
    using THolders = std::vector<TPersistent*>;

    void AddLines(const String& prefix, int depth, const THolders& holders, const THolders& models);
    void AddNested(const TPropertyLine& line);
    void AddElements(const TPropertyLine& set);
    void Fill(TPropertyLine& line) const;
    [[nodiscard]] String TextOf(const TPropertyLine& line, TPersistent& holder) const;
    void SetTextOf(const TPropertyLine& line, TPersistent& holder, const String& text);
    [[nodiscard]] bool IsShown(const TPublishedProperty& row, const THolders& holders) const;
    [[nodiscard]] std::vector<const TPublishedProperty*> CommonRows(const THolders& holders) const;
    [[nodiscard]] TPersistent& NewOf(const TPersistent& object);
    [[nodiscard]] THolders Subjects() const;
    [[nodiscard]] bool IsFormPlace(const TPropertyLine& line, const TPersistent& holder) const;
    void EditLine(const String& path, const std::function<void(const TPropertyLine&)>& change);

    TDesignDocument& FDocument;
    TKind FKind;
    std::vector<TPropertyLine> FLines;
    std::set<String> FExpanded;
    std::function<TPersistent*()> FSubject;
    /// One new object of each class that was shown, to compare with.
    std::map<const TMetaClass*, std::unique_ptr<TPersistent>> FNew;
};

}  // namespace designer
