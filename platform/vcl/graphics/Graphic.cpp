#include "platform/vcl/graphics/Graphic.h"

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Filer.h"
#include "platform/vcl/core/Streams.h"

namespace vcl {

const TMetaClass& TGraphic::StaticClass() {
    static const TMetaClass meta = DefineClass<TGraphic>(L"TGraphic", TPersistent::StaticClass());
    return meta;
}

void TGraphic::SetTransparent(bool value) {
    if (FTransparent == value) return;
    FTransparent = value;
    Changed();
}

void TGraphic::SetModified(bool value) {
    if (value)
        Changed();
    else
        FModified = false;
}

void TGraphic::LoadFromStream(TStream& stream) {
    std::vector<std::byte> bytes(static_cast<std::size_t>(stream.GetSize() - stream.GetPosition()));
    stream.ReadBuffer(bytes.data(), bytes.size());
    LoadFromBytes(bytes);
}

void TGraphic::SaveToStream(TStream& stream) const {
    const std::vector<std::byte> bytes = SaveToBytes();
    stream.WriteBuffer(bytes.data(), bytes.size());
}

void TGraphic::LoadFromFile(const String& fileName) {
    TFileStream file(fileName, fmOpenRead | fmShareDenyWrite);
    LoadFromStream(file);
}

void TGraphic::SaveToFile(const String& fileName) const {
    TFileStream file(fileName, fmCreate);
    SaveToStream(file);
}

void TGraphic::DefineProperties(TFiler& filer) {
    TPersistent::DefineProperties(filer);
    const auto* ancestor = dynamic_cast<const TGraphic*>(filer.GetAncestor());
    const bool differs = ancestor ? SaveToBytes() != ancestor->SaveToBytes() : !GetEmpty();
    filer.DefineBinaryProperty(
        L"Data", [this](TStream& stream) { ReadData(stream); },
        [this](TStream& stream) { WriteData(stream); }, differs);
}

void TGraphic::ReadData(TStream& stream) {
    std::int64_t length = stream.GetSize() - stream.GetPosition();
    if (HasLengthInForms()) {
        std::uint32_t stated = 0;
        stream.ReadBuffer(&stated, sizeof stated);
        if (stated > length - std::int64_t{sizeof stated}) throw EInvalidGraphic(L"The picture is cut off");
        length = stated;
    }
    if (length == 0) return Assign(nullptr);
    std::vector<std::byte> bytes(static_cast<std::size_t>(length));
    stream.ReadBuffer(bytes.data(), bytes.size());
    LoadFromBytes(bytes);
}

void TGraphic::WriteData(TStream& stream) const {
    std::vector<std::byte> bytes;
    if (!GetEmpty()) bytes = SaveToBytes();
    const auto length = static_cast<std::uint32_t>(bytes.size());
    if (HasLengthInForms()) stream.WriteBuffer(&length, sizeof length);
    stream.WriteBuffer(bytes.data(), bytes.size());
}

void TGraphic::Changed() {
    FModified = true;
    OnChange(this);
}

}  // namespace vcl
