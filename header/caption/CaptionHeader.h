#pragma once

#include <memory>

#include "platform/vcl/controls/GraphicControl.h"
#include "skin/Namespace.h"

namespace qv7skin {

class THeaderBands;

/// A caption bar: one line of text on two bands, grey as the headers of explorer bar groups or dark as
/// column headers.
class TQV7SkinHeader : public TGraphicControl {
public:
    /// 50 x 20 pixels, grey, in the skin's font.
    explicit TQV7SkinHeader(TComponent* AOwner);
    ~TQV7SkinHeader() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Grey bands, or dark ones; true at first.
    [[nodiscard]] bool GetGrey() const { return FGrey; }
    void SetGrey(bool Value);
    /// Pixels between the left edge and the caption; 6 at first.
    [[nodiscard]] int GetLeftTextOffset() const { return FLeftTextOffset; }
    void SetLeftTextOffset(int Value);
    /// Whether the caption has the colour and style of the palette whatever `Font` says; true at first.
    [[nodiscard]] bool GetUseSkinFont() const { return FUseSkinFont; }
    void SetUseSkinFont(bool Value);

protected:
    void Paint() override;

private:
    void PaintBands();
    void PaintCaption();

    int FLeftTextOffset = 6;
    bool FGrey = true;
    bool FUseSkinFont = true;
    std::shared_ptr<const THeaderBands> FBands;  ///< Null before the first painting.
};

}  // namespace qv7skin
