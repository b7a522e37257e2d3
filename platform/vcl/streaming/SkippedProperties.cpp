#include "platform/vcl/streaming/SkippedProperties.h"

#include <tuple>

namespace vcl {
namespace {

void SkipValue(TValueReader& reader) {
    switch (reader.NextValue()) {
        case TValueKind::Boolean:
            std::ignore = reader.ReadBoolean();
            break;
        case TValueKind::Integer:
            std::ignore = reader.ReadInt64();
            break;
        case TValueKind::Float:
            std::ignore = reader.ReadFloat();
            break;
        case TValueKind::String:
            std::ignore = reader.ReadString();
            break;
        case TValueKind::List:
            reader.ReadListBegin();
            while (!reader.EndOfList())
                SkipValue(reader);
            reader.ReadListEnd();
            break;
        default:
            std::ignore = reader.ReadIdent();
    }
}

}  // namespace

void SkipProperties(TFiler& filer, std::initializer_list<const wchar_t*> names) {
    for (const wchar_t* name : names)
        filer.DefineProperty(name, &SkipValue, {}, false);
}

}  // namespace vcl
