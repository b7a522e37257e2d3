#include "platform/vcl/graphics/Font.h"

#include <cstring>

#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/GdiErrors.h"
#include "platform/vcl/graphics/SharedHandles.h"

namespace vcl {
namespace {

constexpr const wchar_t* DefaultName = L"Tahoma";
constexpr int DefaultSize = 8;

/// A LOGFONT as a key: names compare without regard to case, as the system compares them.
struct TFontKey {
    LOGFONTW Looks;

    explicit TFontKey(const LOGFONTW& looks) : Looks(looks) { ::CharUpperW(Looks.lfFaceName); }
    bool operator<(const TFontKey& other) const {
        return std::memcmp(&Looks, &other.Looks, sizeof Looks) < 0;
    }
};

TSharedHandles<TFontKey, TFontHandle>& SharedFonts() {
    static auto& fonts = *new TSharedHandles<TFontKey, TFontHandle>;
    return fonts;
}

}  // namespace

std::span<const wchar_t* const> TEnumNames<TFontStyle>::Names() {
    static constexpr const wchar_t* names[] = {L"fsBold", L"fsItalic", L"fsUnderline", L"fsStrikeOut"};
    return names;
}

std::span<const wchar_t* const> TEnumNames<TFontPitch>::Names() {
    static constexpr const wchar_t* names[] = {L"fpDefault", L"fpFixed", L"fpVariable"};
    return names;
}

std::span<const wchar_t* const> TEnumNames<TFontQuality>::Names() {
    static constexpr const wchar_t* names[] = {L"fqDefault",         L"fqDraft",       L"fqProof",
                                               L"fqNonAntialiased",  L"fqAntialiased", L"fqClearType",
                                               L"fqClearTypeNatural"};
    return names;
}

const TMetaClass& TFont::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TFont>(L"TFont", TPersistent::StaticClass())
            .Property(L"Charset", &TFont::GetCharset, &TFont::SetCharset)
            .Identifiers(CharsetIdentifiers())
            .Property(L"Color", &TFont::GetColor, &TFont::SetColor)
            .Identifiers(ColorIdentifiers())
            .Property(L"Height", &TFont::GetHeight, &TFont::SetHeight)
            .Property(L"Name", &TFont::GetName, &TFont::SetName)
            .Property(L"Orientation", &TFont::GetOrientation, &TFont::SetOrientation, 0)
            .Property(L"Pitch", &TFont::GetPitch, &TFont::SetPitch, fpDefault)
            .Property(L"Quality", &TFont::GetQuality, &TFont::SetQuality, fqDefault)
            .Property(L"Size", &TFont::GetSize, &TFont::SetSize)
            .NotStored()
            .Property(L"Style", &TFont::GetStyle, &TFont::SetStyle);
    return meta;
}

TFont::TFont()
    : FName(DefaultName),
      FHeight(-::MulDiv(DefaultSize, ScreenPixelsPerInch(), 72)),
      FPixelsPerInch(ScreenPixelsPerInch()),
      FCharset(DEFAULT_CHARSET) {}

void TFont::Assign(const TPersistent* source) {
    if (!source) {
        const TFont plain;
        Assign(&plain);
        return;
    }
    const auto* font = dynamic_cast<const TFont*>(source);
    if (!font) {
        TPersistent::Assign(source);
        return;
    }
    if (Equals(*font)) {
        FPixelsPerInch = font->FPixelsPerInch;
        return;
    }
    FName = font->FName;
    FHeight = font->FHeight;
    FPixelsPerInch = font->FPixelsPerInch;
    FCharset = font->FCharset;
    FOrientation = font->FOrientation;
    FStyle = font->FStyle;
    FPitch = font->FPitch;
    FQuality = font->FQuality;
    FColor = font->FColor;
    FShared = font->FShared;
    Changed();
}

template <class V>
void TFont::Change(V& field, const V& value) {
    if (field == value) return;
    field = value;
    FShared.reset();
    Changed();
}

void TFont::SetName(const String& value) {
    if (!value.empty()) Change(FName, value);
}

void TFont::SetHeight(int value) {
    Change(FHeight, value);
}

int TFont::GetSize() const {
    return -::MulDiv(FHeight, 72, FPixelsPerInch);
}

void TFont::SetSize(int value) {
    SetHeight(-::MulDiv(value, FPixelsPerInch, 72));
}

void TFont::SetStyle(TFontStyles value) {
    Change(FStyle, value);
}

void TFont::SetColor(TColor value) {
    if (FColor == value) return;
    FColor = value;
    Changed();
}

void TFont::SetCharset(int value) {
    Change(FCharset, value);
}

void TFont::SetPitch(TFontPitch value) {
    Change(FPitch, value);
}

void TFont::SetQuality(TFontQuality value) {
    Change(FQuality, value);
}

void TFont::SetOrientation(int value) {
    Change(FOrientation, value);
}

void TFont::SetPixelsPerInch(int value) {
    if (value > 0) FPixelsPerInch = value;
}

const TSharedFont& TFont::GetShared() const {
    if (!FShared) {
        const LOGFONTW looks = GetLogFont();
        FShared = SharedFonts().Get(TFontKey(looks),
                                    [&] { return TFontHandle(CheckHandle(::CreateFontIndirectW(&looks))); });
    }
    return FShared;
}

LOGFONTW TFont::GetLogFont() const {
    LOGFONTW looks{};
    looks.lfHeight = FHeight;
    looks.lfEscapement = FOrientation;
    looks.lfOrientation = FOrientation;
    looks.lfWeight = FStyle.Contains(fsBold) ? FW_BOLD : FW_NORMAL;
    looks.lfItalic = FStyle.Contains(fsItalic);
    looks.lfUnderline = FStyle.Contains(fsUnderline);
    looks.lfStrikeOut = FStyle.Contains(fsStrikeOut);
    looks.lfCharSet = static_cast<BYTE>(FCharset);
    looks.lfQuality = static_cast<BYTE>(FQuality);
    looks.lfPitchAndFamily = static_cast<BYTE>(FPitch);
    const std::size_t length = std::min<std::size_t>(FName.size(), LF_FACESIZE - 1);
    std::copy_n(FName.begin(), length, looks.lfFaceName);
    return looks;
}

void TFont::SetLogFont(const LOGFONTW& value) {
    TFont font;
    font.FPixelsPerInch = FPixelsPerInch;
    font.FColor = FColor;
    font.FName = value.lfFaceName;
    font.FHeight = value.lfHeight;
    font.FOrientation = value.lfOrientation;
    font.FCharset = value.lfCharSet;
    font.FStyle.Put(fsBold, value.lfWeight >= FW_BOLD);
    font.FStyle.Put(fsItalic, value.lfItalic != 0);
    font.FStyle.Put(fsUnderline, value.lfUnderline != 0);
    font.FStyle.Put(fsStrikeOut, value.lfStrikeOut != 0);
    font.FPitch = static_cast<TFontPitch>(std::min(value.lfPitchAndFamily & 3, 2));
    font.FQuality = static_cast<TFontQuality>(std::min<int>(value.lfQuality, CLEARTYPE_NATURAL_QUALITY));
    Assign(&font);
}

bool TFont::Equals(const TFont& other) const {
    return FHeight == other.FHeight && FCharset == other.FCharset && FOrientation == other.FOrientation &&
           FStyle == other.FStyle && FPitch == other.FPitch && FQuality == other.FQuality &&
           FColor == other.FColor && FName == other.FName;
}

int ScreenPixelsPerInch() {
    static const int pixels = [] {
        const HDC screen = ::GetDC(nullptr);
        const int value = screen ? ::GetDeviceCaps(screen, LOGPIXELSY) : 0;
        if (screen) ::ReleaseDC(nullptr, screen);
        return value > 0 ? value : 96;
    }();
    return pixels;
}

std::span<const TIdentifier> CharsetIdentifiers() {
    static constexpr TIdentifier identifiers[] = {
        {L"ANSI_CHARSET", ANSI_CHARSET},
        {L"DEFAULT_CHARSET", DEFAULT_CHARSET},
        {L"SYMBOL_CHARSET", SYMBOL_CHARSET},
        {L"MAC_CHARSET", MAC_CHARSET},
        {L"SHIFTJIS_CHARSET", SHIFTJIS_CHARSET},
        {L"HANGEUL_CHARSET", HANGEUL_CHARSET},
        {L"JOHAB_CHARSET", JOHAB_CHARSET},
        {L"GB2312_CHARSET", GB2312_CHARSET},
        {L"CHINESEBIG5_CHARSET", CHINESEBIG5_CHARSET},
        {L"GREEK_CHARSET", GREEK_CHARSET},
        {L"TURKISH_CHARSET", TURKISH_CHARSET},
        {L"HEBREW_CHARSET", HEBREW_CHARSET},
        {L"ARABIC_CHARSET", ARABIC_CHARSET},
        {L"BALTIC_CHARSET", BALTIC_CHARSET},
        {L"RUSSIAN_CHARSET", RUSSIAN_CHARSET},
        {L"THAI_CHARSET", THAI_CHARSET},
        {L"EASTEUROPE_CHARSET", EASTEUROPE_CHARSET},
        {L"OEM_CHARSET", OEM_CHARSET},
    };
    return identifiers;
}

}  // namespace vcl
