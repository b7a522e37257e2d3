#pragma once

#include <memory>
#include <span>

#include "platform/vcl/graphics/Color.h"
#include "platform/vcl/stdctrls/Label.h"
#include "skin/Namespace.h"

namespace vcl {
class TPicture;
}

/// The link label of the skin.
namespace qv7skin {

/// How a link label shortens a caption that is too long: it is cut, ends in dots, or has dots in the middle
/// so that the last part of a path stays.
enum class TEllipsType { etNone, etEndEllips, etPathEllips };
using enum TEllipsType;

/// A label that looks like a hyperlink: blue, with a hand as cursor, underlined under the mouse. It can have
/// a picture in its top left corner; the caption begins behind it. A disabled one looks engraved.
///
/// With `AutoSize` (true at first) it is as large as picture and caption together. Dots appear where it can't
/// be: without `AutoSize`, or where `Align` or `Constraints` keep it narrow.
class TQV7SkinLinkLabel : public TCustomLabel {
public:
    explicit TQV7SkinLinkLabel(TComponent* AOwner);
    ~TQV7SkinLinkLabel() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The picture, owned by the label; change it in place or assign another. Bitmaps show, pictures of other
    /// kinds do not.
    [[nodiscard]] TPicture& GetPicture() const { return *FPicture; }
    void SetPicture(const TPicture& Value);
    /// The colour of the picture's pixels that are left out; clNone (at first) draws all of them.
    [[nodiscard]] TColor GetTransparentColor() const { return FTransparentColor; }
    void SetTransparentColor(TColor Value);
    [[nodiscard]] TEllipsType GetEllipsType() const { return FEllipsType; }
    void SetEllipsType(TEllipsType Value);

protected:
    void Dispatch(TMessage& message) override;
    void Paint() override;
    [[nodiscard]] TRect NeededRect(int width) override;
    /// Makes the disabled form of the picture.
    void MakeGrayedBitmap();
    /// Draws the picture and moves the left edge of the rectangle behind it.
    void PaintPicture(TRect& Rect);

private:
    void PictureChanged(TObject* sender);
    [[nodiscard]] int PictureSpace() const;
    void DrawLine(TRect rect, TColor color);
    void SetUnderline(bool value);

    std::unique_ptr<TPicture> FPicture;
    std::unique_ptr<TPicture> FGrayedPicture;
    bool FGrayedIsStale = true;
    TColor FTransparentColor = clNone;
    TEllipsType FEllipsType = etNone;
};

}  // namespace qv7skin

template <>
struct vcl::TEnumNames<qv7skin::TEllipsType> {
    static std::span<const wchar_t* const> Names();
};
