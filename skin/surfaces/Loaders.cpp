#include "skin/surfaces/Loaders.h"

#include "platform/vcl/graphics/Font.h"
#include "skin/UnitQV7SkinConsts.h"

namespace qv7skin {

void SetSkinFont(TFont& Font) {
    Font.SetName(L"Tahoma");
}

std::unique_ptr<TBitmap> CreateBmp(const String& Name) {
    return CreateBmp(QV7SkinModule(), Name);
}

std::unique_ptr<TBitmap> CreateBmp(HINSTANCE Module, const String& Name) {
    auto bitmap = std::make_unique<TBitmap>();
    bitmap->LoadFromResourceName(Module, Name);
    return bitmap;
}

std::unique_ptr<TTransparentBitmap> CreateTransparentBmp(const String& Name) {
    return CreateTransparentBmp(QV7SkinModule(), Name);
}

std::unique_ptr<TTransparentBitmap> CreateTransparentBmp(HINSTANCE Module, const String& Name) {
    auto result = std::make_unique<TTransparentBitmap>(0x00FF00FF);
    result->SetBitmap(CreateBmp(Module, Name).get());
    return result;
}

}  // namespace qv7skin
