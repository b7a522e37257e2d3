#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Filer.h"
#include "platform/vcl/core/Streams.h"
#include "platform/vcl/core/StringList.h"
#include "platform/vcl/core/TextEncoding.h"
#include "platform/vcl/core/UpdateBracket.h"

namespace vcl {

const TMetaClass& TStrings::StaticClass() {
    static const TMetaClass meta = DefineClass<TStrings>(L"TStrings", TPersistent::StaticClass());
    return meta;
}

int TStrings::AddObject(const String& text, TObject* object) {
    const int index = GetCount();
    InsertObject(index, text, object);
    return index;
}

void TStrings::AddStrings(const TStrings& source) {
    WithinUpdate(*this, [&] {
        // The count is taken once, so that a list can be appended to itself.
        const int count = source.GetCount();
        for (int i = 0; i < count; ++i)
            AddObject(source.Get(i), source.GetObject(i));
    });
}

int TStrings::IndexOf(StringView text) const {
    const int count = GetCount();
    for (int i = 0; i < count; ++i) {
        if (CompareText(Get(i), text) == 0) return i;
    }
    return -1;
}

int TStrings::IndexOfObject(const TObject* object) const {
    const int count = GetCount();
    for (int i = 0; i < count; ++i) {
        if (GetObject(i) == object) return i;
    }
    return -1;
}

void TStrings::Move(int currentIndex, int newIndex) {
    if (currentIndex == newIndex) return;
    WithinUpdate(*this, [&] {
        const String text = Get(currentIndex);
        TObject* object = GetObject(currentIndex);
        Delete(currentIndex);
        InsertObject(newIndex, text, object);
    });
}

void TStrings::Exchange(int a, int b) {
    WithinUpdate(*this, [&] {
        const String text = Get(a);
        TObject* object = GetObject(a);
        const String other = Get(b);
        TObject* otherObject = GetObject(b);
        Put(a, other);
        PutObject(a, otherObject);
        Put(b, text);
        PutObject(b, object);
    });
}

String TStrings::GetText() const {
    String text;
    const int count = GetCount();
    for (int i = 0; i < count; ++i)
        text.append(Get(i)).append(L"\r\n");
    return text;
}

void TStrings::SetText(const String& text) {
    WithinUpdate(*this, [&] {
        Clear();
        for (const String& line : SplitLines(text))
            Add(line);
    });
}

void TStrings::LoadFromFile(const String& fileName) {
    TFileStream file(fileName, fmOpenRead | fmShareDenyWrite);
    LoadFromStream(file);
}

void TStrings::LoadFromStream(TStream& stream) {
    const std::int64_t rest = std::max<std::int64_t>(stream.GetSize() - stream.GetPosition(), 0);
    std::vector<std::byte> bytes(static_cast<std::size_t>(rest));
    stream.ReadBuffer(bytes.data(), bytes.size());
    SetText(DecodeText(bytes));
}

void TStrings::SaveToFile(const String& fileName) const {
    TFileStream file(fileName, fmCreate);
    SaveToStream(file);
}

void TStrings::SaveToStream(TStream& stream) const {
    const std::string bytes = EncodeText(GetText());
    stream.WriteBuffer(bytes.data(), bytes.size());
}

void TStrings::DefineProperties(TFiler& filer) {
    TPersistent::DefineProperties(filer);
    const auto read = [this](TValueReader& reader) {
        WithinUpdate(*this, [&] {
            Clear();
            reader.ReadListBegin();
            while (!reader.EndOfList())
                Add(reader.ReadString());
            reader.ReadListEnd();
        });
    };
    const auto write = [this](TValueWriter& writer) {
        writer.WriteListBegin();
        const int count = GetCount();
        for (int i = 0; i < count; ++i)
            writer.WriteString(Get(i));
        writer.WriteListEnd();
    };
    const auto* ancestor = dynamic_cast<const TStrings*>(filer.GetAncestor());
    filer.DefineProperty(L"Strings", read, write, ancestor ? !Equals(*ancestor) : GetCount() > 0);
}

bool TStrings::Equals(const TStrings& other) const {
    const int count = GetCount();
    if (count != other.GetCount()) return false;
    for (int i = 0; i < count; ++i) {
        if (Get(i) != other.Get(i)) return false;
    }
    return true;
}

void TStrings::BeginUpdate() {
    if (FUpdateCount == 0) SetUpdateState(true);
    ++FUpdateCount;
}

void TStrings::EndUpdate() {
    if (FUpdateCount == 0) return;
    if (--FUpdateCount == 0) SetUpdateState(false);
}

void TStrings::SetUpdateState(bool) {}

void TStrings::Assign(const TPersistent* source) {
    if (source == this) return;
    const auto* strings = dynamic_cast<const TStrings*>(source);
    if (!strings) return TPersistent::Assign(source);
    WithinUpdate(*this, [&] {
        Clear();
        AddStrings(*strings);
    });
}

}  // namespace vcl
