#include "platform/vcl/graphics/Graphic.h"

#include "platform/vcl/core/DefineClass.h"
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

void TGraphic::Changed() {
    FModified = true;
    OnChange(this);
}

}  // namespace vcl
