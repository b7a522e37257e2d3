#pragma once

#include <memory>

#include "platform/vcl/core/Sets.h"
#include "platform/vcl/core/Strings.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/graphics/GraphicsObject.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

enum class TFontStyle { fsBold, fsItalic, fsUnderline, fsStrikeOut };
using TFontStyles = TSet<TFontStyle>;
enum class TFontPitch { fpDefault, fpFixed, fpVariable };
/// How glyph edges are smoothed, by the Windows values of LOGFONT.lfQuality.
enum class TFontQuality {
    fqDefault,
    fqDraft,
    fqProof,
    fqNonAntialiased,
    fqAntialiased,
    fqClearType,
    fqClearTypeNatural
};
using enum TFontStyle;
using enum TFontPitch;
using enum TFontQuality;

template <>
struct TEnumNames<TFontStyle> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TFontPitch> {
    static std::span<const wchar_t* const> Names();
};
template <>
struct TEnumNames<TFontQuality> {
    static std::span<const wchar_t* const> Names();
};

/// A font handle shared by all fonts and canvases of the process that look alike; freed with the last of
/// them.
using TSharedFont = std::shared_ptr<const TFontHandle>;

/// A font and the colour of text. A new font is Tahoma, 8 points at the screen's resolution, regular, in the
/// colour of window text. Fonts that look alike share one handle.
class TFont : public TGraphicsObject {
public:
    TFont();
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Takes over all that a font has, its colour and resolution too; null sets the default font.
    void Assign(const TPersistent* source) override;

    [[nodiscard]] const String& GetName() const { return FName; }
    void SetName(const String& value);
    /// The height in pixels: negative without, positive with the internal leading.
    [[nodiscard]] int GetHeight() const { return FHeight; }
    void SetHeight(int value);
    /// The height in points (1/72 inch); follows `Height` and `PixelsPerInch` by -Height x 72 /
    /// PixelsPerInch.
    [[nodiscard]] int GetSize() const;
    void SetSize(int value);
    [[nodiscard]] TFontStyles GetStyle() const { return FStyle; }
    void SetStyle(TFontStyles value);
    [[nodiscard]] TColor GetColor() const { return FColor; }
    void SetColor(TColor value);
    /// A Windows character set, DEFAULT_CHARSET (1) at first.
    [[nodiscard]] int GetCharset() const { return FCharset; }
    void SetCharset(int value);
    [[nodiscard]] TFontPitch GetPitch() const { return FPitch; }
    void SetPitch(TFontPitch value);
    [[nodiscard]] TFontQuality GetQuality() const { return FQuality; }
    void SetQuality(TFontQuality value);
    /// The angle of the base line in tenths of a degree, counter-clockwise.
    [[nodiscard]] int GetOrientation() const { return FOrientation; }
    void SetOrientation(int value);
    /// The resolution that `Size` is reckoned with; setting it keeps `Height`.
    [[nodiscard]] int GetPixelsPerInch() const { return FPixelsPerInch; }
    void SetPixelsPerInch(int value);

    /// The system's handle, shared and made on first use. It lives as long as this font keeps its looks;
    /// whoever keeps it longer takes `GetShared`. Raises EOutOfResources.
    [[nodiscard]] HFONT GetHandle() const { return GetShared()->Get(); }
    [[nodiscard]] const TSharedFont& GetShared() const;
    /// The looks in the system's terms, and taken over from there (all but the colour).
    [[nodiscard]] LOGFONTW GetLogFont() const;
    void SetLogFont(const LOGFONTW& value);

    /// True when both have the same looks and colour.
    [[nodiscard]] bool Equals(const TFont& other) const;

private:
    template <class V>
    void Change(V& field, const V& value);

    String FName;
    int FHeight;
    int FPixelsPerInch;
    int FCharset;
    int FOrientation = 0;
    TFontStyles FStyle;
    TFontPitch FPitch = fpDefault;
    TFontQuality FQuality = fqDefault;
    TColor FColor = clWindowText;
    mutable TSharedFont FShared;
};

/// Vertical pixels per inch of the screen.
[[nodiscard]] int ScreenPixelsPerInch();
/// The names of the Windows character sets, for form files.
[[nodiscard]] std::span<const TIdentifier> CharsetIdentifiers();

}  // namespace vcl
