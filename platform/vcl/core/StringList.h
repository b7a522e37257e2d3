#pragma once

#include <vector>

#include "platform/vcl/core/Events.h"
#include "platform/vcl/core/Persistent.h"
#include "platform/vcl/core/WindowsApi.h"

namespace vcl {

class TStream;

/// A list of texts, each with an object that the list does not own. Index errors raise EStringListError
/// "List index out of bounds (n)".
class TStrings : public TPersistent {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] virtual int GetCount() const = 0;
    [[nodiscard]] virtual String Get(int index) const = 0;
    virtual void Put(int index, const String& text) = 0;
    [[nodiscard]] virtual TObject* GetObject(int index) const = 0;
    virtual void PutObject(int index, TObject* object) = 0;
    virtual void InsertObject(int index, const String& text, TObject* object) = 0;
    virtual void Delete(int index) = 0;
    virtual void Clear() = 0;

    [[nodiscard]] String operator[](int index) const { return Get(index); }
    /// Appends and returns the index (of a sorted list: the place where it went).
    virtual int AddObject(const String& text, TObject* object);
    int Add(const String& text) { return AddObject(text, nullptr); }
    void Insert(int index, const String& text) { InsertObject(index, text, nullptr); }
    /// Appends all texts and objects of the other list.
    void AddStrings(const TStrings& source);
    /// The first index with that text, or -1; ignores case by the rules of the user's locale.
    [[nodiscard]] virtual int IndexOf(StringView text) const;
    [[nodiscard]] int IndexOfObject(const TObject* object) const;
    virtual void Move(int currentIndex, int newIndex);
    virtual void Exchange(int a, int b);
    /// All lines, each followed by CR LF.
    [[nodiscard]] String GetText() const;
    void SetText(const String& text);
    /// Takes over the lines of a text in a file or in the rest of a stream, in UTF-8, UTF-16 with its mark or
    /// code page 1252. Raises EFOpenError, EReadError.
    void LoadFromFile(const String& fileName);
    void LoadFromStream(TStream& stream);
    /// Writes all lines in UTF-8, after its mark. Raises EFCreateError, EWriteError.
    void SaveToFile(const String& fileName) const;
    void SaveToStream(TStream& stream) const;
    [[nodiscard]] bool Equals(const TStrings& other) const;
    /// Holds change events back until the matching EndUpdate.
    void BeginUpdate();
    void EndUpdate();
    void Assign(const TPersistent* source) override;

protected:
    /// The texts, as the list `Strings`.
    void DefineProperties(TFiler& filer) override;
    [[nodiscard]] bool IsUpdating() const { return FUpdateCount > 0; }
    virtual void SetUpdateState(bool updating);

private:
    int FUpdateCount = 0;
};

enum class TDuplicates { dupIgnore, dupAccept, dupError };
using enum TDuplicates;

/// The list of texts in memory.
class TStringList : public TStrings {
public:
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Raised after and before every change, once for a whole BeginUpdate/EndUpdate bracket.
    TNotifyEvent OnChange;
    TNotifyEvent OnChanging;

    [[nodiscard]] int GetCount() const override { return static_cast<int>(FItems.size()); }
    [[nodiscard]] String Get(int index) const override;
    void Put(int index, const String& text) override;
    [[nodiscard]] TObject* GetObject(int index) const override;
    void PutObject(int index, TObject* object) override;
    void InsertObject(int index, const String& text, TObject* object) override;
    int AddObject(const String& text, TObject* object) override;
    void Delete(int index) override;
    void Clear() override;
    void Move(int currentIndex, int newIndex) override;
    void Exchange(int a, int b) override;
    [[nodiscard]] int IndexOf(StringView text) const override;

    [[nodiscard]] bool GetSorted() const { return FSorted; }
    /// Sorts now and keeps the list sorted; inserting at an index is then an error (EStringListError).
    void SetSorted(bool value);
    void Sort();
    /// What a sorted list does with a text that it already holds.
    TDuplicates Duplicates = dupIgnore;

protected:
    void SetUpdateState(bool updating) override;
    virtual void Changed();
    virtual void Changing();

private:
    struct TItem {
        String Text;
        TObject* Object;
    };
    void CheckIndex(int index, int limit) const;
    void CheckUnsorted() const;
    void InsertItem(int index, TItem item);
    /// The place of the text in a sorted list, or where it would go.
    [[nodiscard]] bool Find(StringView text, int& index) const;
    std::vector<TItem> FItems;
    bool FSorted = false;
};

}  // namespace vcl
