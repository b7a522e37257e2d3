#include "platform/vcl/graphics/Picture.h"

#include <map>
#include <mutex>
#include <string>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/core/Exceptions.h"
#include "platform/vcl/core/Filer.h"
#include "platform/vcl/core/Streams.h"
#include "platform/vcl/graphics/Jpeg.h"
#include "platform/vcl/graphics/Png.h"

namespace vcl {
namespace {

/// The kinds of pictures by the extension of their files, in lower case.
class TFileFormats {
public:
    static TFileFormats& Instance() {
        static TFileFormats formats;
        return formats;
    }
    void Add(const String& extension, TPicture::Factory factory) {
        const std::lock_guard lock(FMutex);
        FFactories[LowerCase(extension)] = std::move(factory);
    }
    /// An empty picture of the kind; raises EInvalidGraphic for unknown extensions.
    [[nodiscard]] std::unique_ptr<TGraphic> Make(const String& extension) {
        const std::lock_guard lock(FMutex);
        const auto found = FFactories.find(LowerCase(extension));
        if (found == FFactories.end())
            throw EInvalidGraphic(Format(L"Unknown picture file extension (.%s)", extension.c_str()));
        return found->second();
    }

    /// An empty picture of the class of that name; raises EInvalidGraphic for unknown ones.
    [[nodiscard]] std::unique_ptr<TGraphic> MakeOfClass(StringView name) {
        const std::lock_guard lock(FMutex);
        for (const auto& [extension, factory] : FFactories) {
            auto made = factory();
            if (SameText(made->ClassName(), name)) return made;
        }
        throw EInvalidGraphic(Format(L"Unknown class of pictures: %s", name));
    }

private:
    template <class T>
    static std::unique_ptr<TGraphic> New() {
        return std::make_unique<T>();
    }

    std::mutex FMutex;
    std::map<String, TPicture::Factory> FFactories = {{L"bmp", &New<TBitmap>},
                                                      {L"jpg", &New<TJPEGImage>},
                                                      {L"jpeg", &New<TJPEGImage>},
                                                      {L"png", &New<TPngImage>},
                                                      {L"ico", &New<TIcon>}};
};

/// What follows the last dot of the name's last part.
String ExtensionOf(const String& fileName) {
    const auto dot = fileName.find_last_of(L".\\/:");
    return dot == String::npos || fileName[dot] != L'.' ? String() : fileName.substr(dot + 1);
}

}  // namespace

const TMetaClass& TPicture::StaticClass() {
    static const TMetaClass meta = DefineClass<TPicture>(L"TPicture", TPersistent::StaticClass());
    return meta;
}

TPicture::~TPicture() = default;

void TPicture::Assign(const TPersistent* source) {
    if (source == this) return;
    const auto* picture = dynamic_cast<const TPicture*>(source);
    const auto* graphic = dynamic_cast<const TGraphic*>(source);
    if (!source || picture || graphic)
        SetGraphic(picture ? picture->GetGraphic() : graphic);
    else
        TPersistent::Assign(source);
}

void TPicture::AssignTo(TPersistent* dest) const {
    if (dynamic_cast<TGraphic*>(dest))
        dest->Assign(FGraphic.get());
    else
        TPersistent::AssignTo(dest);
}

void TPicture::DefineProperties(TFiler& filer) {
    TPersistent::DefineProperties(filer);
    const auto* ancestor = dynamic_cast<const TPicture*>(filer.GetAncestor());
    filer.DefineBinaryProperty(
        L"Data", [this](TStream& stream) { ReadData(stream); },
        [this](TStream& stream) { WriteData(stream); },
        ancestor ? !IsSameAs(*ancestor) : FGraphic != nullptr);
}

bool TPicture::IsSameAs(const TPicture& other) const {
    if (!FGraphic || !other.FGraphic) return FGraphic == other.FGraphic;
    return FGraphic->ClassName() == other.FGraphic->ClassName() &&
           FGraphic->SaveToBytes() == other.FGraphic->SaveToBytes();
}

void TPicture::ReadData(TStream& stream) {
    std::uint8_t length = 0;
    stream.ReadBuffer(&length, sizeof length);
    std::string name(length, '\0');
    stream.ReadBuffer(name.data(), name.size());
    std::unique_ptr<TGraphic> graphic;
    if (!name.empty()) {
        graphic = TFileFormats::Instance().MakeOfClass(FromUtf8(name));
        graphic->ReadData(stream);
    }
    Take(std::move(graphic));
    GraphicChanged(this);
}

void TPicture::WriteData(TStream& stream) const {
    const std::string name = FGraphic ? ToUtf8(FGraphic->ClassName()) : std::string();
    const auto length = static_cast<std::uint8_t>(name.size());
    stream.WriteBuffer(&length, sizeof length);
    stream.WriteBuffer(name.data(), name.size());
    if (FGraphic) FGraphic->WriteData(stream);
}

void TPicture::SetGraphic(const TGraphic* value) {
    if (value && value == FGraphic.get()) return;
    std::unique_ptr<TGraphic> copy;
    if (value) {
        copy = value->NewOfKind();
        copy->Assign(value);
    }
    Take(std::move(copy));
    GraphicChanged(this);
}

void TPicture::Take(std::unique_ptr<TGraphic> graphic) {
    FGraphic = std::move(graphic);
    if (FGraphic) FGraphic->OnChange = {this, &TPicture::GraphicChanged};
}

void TPicture::GraphicChanged(TObject*) {
    OnChange(this);
}

template <class T>
T& TPicture::Force() {
    auto* present = dynamic_cast<T*>(FGraphic.get());
    if (present) return *present;
    const bool replaces = FGraphic != nullptr;
    auto made = std::make_unique<T>();
    T& result = *made;
    Take(std::move(made));
    if (replaces) GraphicChanged(this);
    return result;
}

TBitmap& TPicture::GetBitmap() {
    return Force<TBitmap>();
}

TIcon& TPicture::GetIcon() {
    return Force<TIcon>();
}

void TPicture::LoadFromFile(const String& fileName) {
    auto graphic = TFileFormats::Instance().Make(ExtensionOf(fileName));
    graphic->LoadFromFile(fileName);
    Take(std::move(graphic));
    GraphicChanged(this);
}

void TPicture::SaveToFile(const String& fileName) const {
    if (FGraphic) FGraphic->SaveToFile(fileName);
}

void TPicture::RegisterFileFormat(const String& extension, Factory factory) {
    TFileFormats::Instance().Add(extension, std::move(factory));
}

}  // namespace vcl
