#pragma once

#include <memory>
#include <vector>

#include "designer/model/DesignDocument.h"

namespace designer {

/// An entry as a tree of items shows it.
struct TItemEntry {
    TPersistent* Object = nullptr;
    int Depth = 0;
    String Text = {};
    String Note = {};  ///< Shown beside the text, such as a short cut.
    bool IsSeparator = false;
};

/// What lies in a component and stands in its form file as a list or a tree: the items of a menu, the actions
/// of a list, the items of a collection and of the collections in them. Entries count from the top down.
/// Changes are edits of the document; they raise what setters raise, and everything is as before then.
class TItemTree {
public:
    /// Works on the document, which must outlive it.
    explicit TItemTree(TDesignDocument& document) : FDocument(document) {}
    virtual ~TItemTree() = default;
    TItemTree(const TItemTree&) = delete;
    TItemTree& operator=(const TItemTree&) = delete;

    /// What a window that shows it is called, such as "Einträge von MainMenu1".
    [[nodiscard]] virtual String Title() const = 0;
    /// True when entries can have entries of their own.
    [[nodiscard]] virtual bool CanNest() const { return true; }
    [[nodiscard]] virtual bool HasSeparators() const { return false; }

    [[nodiscard]] TDesignDocument& Document() const { return FDocument; }
    [[nodiscard]] std::vector<TItemEntry> Entries() const;

    // All of these return where the entry stands afterwards; where something can't be done, nothing happens.
    /// Makes an entry behind the one at the index, or as the last one below it; -1: at the end of the top.
    int Add(int index, bool below, const String& text = {});
    /// Frees the entry with all below it; returns the one that takes its place, or -1 for none.
    int Remove(int index);
    /// Moves the entry before another one, to the same depth (the number of entries: behind the last one).
    int MoveBefore(int index, int before);
    /// Moves it past its neighbours.
    int Shift(int index, int by);
    /// Makes it the last one below its upper neighbour.
    int MoveIn(int index);
    /// Makes it the lower neighbour of the one that it lies below.
    int MoveOut(int index);
    void Rename(int index, const String& text);

protected:
    /// What lies below the object, or at the top for null.
    [[nodiscard]] virtual std::vector<TPersistent*> Children(TPersistent* parent) const = 0;
    virtual void Describe(TItemEntry& entry) const = 0;
    /// Makes one as the last one there.
    virtual TPersistent* Create(TPersistent* parent) = 0;
    virtual void Erase(TPersistent& item) = 0;
    /// Moves it to that place there; false when it can't stand there.
    virtual bool Put(TPersistent& item, TPersistent* parent, int place) = 0;
    virtual void SetText(TPersistent& item, const String& text) = 0;

private:
    /// Where an entry stands among its siblings.
    struct TPlace {
        TPersistent* Parent = nullptr;
        int Index = 0;
    };
    void Collect(TPersistent* parent, int depth, std::vector<TItemEntry>& entries) const;
    [[nodiscard]] TPlace PlaceOf(const std::vector<TItemEntry>& entries, int index) const;
    [[nodiscard]] int IndexOf(const TPersistent* item) const;
    int PutAt(int index, TPlace place);

    TDesignDocument& FDocument;
};

/// The items of the menu of that name.
[[nodiscard]] std::unique_ptr<TItemTree> MakeMenuTree(TDesignDocument& document, const String& menu);
/// The actions of the list of that name.
[[nodiscard]] std::unique_ptr<TItemTree> MakeActionTree(TDesignDocument& document, const String& list);
/// The items of the collection that a property of the component holds, with those of the first collection
/// that each item holds below it.
[[nodiscard]] std::unique_ptr<TItemTree> MakeCollectionTree(TDesignDocument& document,
                                                            const String& component, const String& property);

}  // namespace designer
