#pragma once

#include <memory>

#include "buttons/Namespace.h"
#include "platform/vcl/core/StringList.h"
#include "platform/velmora/ButtonExWithCaption.h"

/// The command button of message dialogs.
namespace qv7skin {

/// A large, flat button: an image at the left, a bold caption, and below it a description of any number of
/// lines in smaller letters. At rest it has no frame; under the mouse and pressed it gets a light ground, a
/// thin border and blue letters; a disabled one looks engraved.
///
/// The image list holds the images of the states in the order normal, hovered, pressed, disabled, and, for
/// buttons that switch over, on and on under the mouse. Magenta pixels are left out. A shorter list lends the
/// pressed image to the states of a button that is on, and else the first image, in grey when disabled.
class TCustomQV7SkinButtonMsgDlg : public TCustomButtonExWithCaption {
public:
    /// 300 x 60 pixels.
    explicit TCustomQV7SkinButtonMsgDlg(TComponent* AOwner);
    ~TCustomQV7SkinButtonMsgDlg() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Gives all that the button looks like its first values; with `KeepColors` the colours below the caption
    /// stay: those of the description, the ground and the border.
    virtual void SetDefaultValues();
    [[nodiscard]] bool GetKeepColors() const { return FKeepColors; }
    void SetKeepColors(bool Value) { FKeepColors = Value; }

    /// Where caption and description stand; taLeftJustify at first.
    [[nodiscard]] TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value) { Change(FAlignment, Value); }
    /// Pixels between the edges and what stands inside; 3 and 3 at first.
    [[nodiscard]] int GetTextMarginHorizontal() const { return FMarginHorizontal; }
    void SetTextMarginHorizontal(int Value) { Change(FMarginHorizontal, Value); }
    [[nodiscard]] int GetTextMarginVertical() const { return FMarginVertical; }
    void SetTextMarginVertical(int Value) { Change(FMarginVertical, Value); }
    /// Pixels between image and text; 20 at first.
    [[nodiscard]] int GetSpacing() const { return FSpacing; }
    void SetSpacing(int Value) { Change(FSpacing, Value); }
    /// Half the pixels by which the text moves down and to the right while the button is pressed; 1 and 1 at
    /// first.
    [[nodiscard]] int GetTextOffsetDownVertical() const { return FOffsetVertical; }
    void SetTextOffsetDownVertical(int Value) { Change(FOffsetVertical, Value); }
    [[nodiscard]] int GetTextOffsetDownHorizontal() const { return FOffsetHorizontal; }
    void SetTextOffsetDownHorizontal(int Value) { Change(FOffsetHorizontal, Value); }

    /// The lines below the caption, owned by the button; change them in place or assign others.
    [[nodiscard]] TStrings& GetDescription() const { return *FDescription; }
    void SetDescription(const TStrings& Value);
    /// The font of the description. Its size is always three points below that of the caption.
    [[nodiscard]] TFont& GetFontDescription() const { return *FFontDescription; }
    void SetFontDescription(const TFont& Value);
    /// Ground and border under the mouse and pressed.
    [[nodiscard]] TColor GetColorHovered() const { return FColorHovered; }
    void SetColorHovered(TColor Value) { Change(FColorHovered, Value); }
    [[nodiscard]] TColor GetColorBorder() const { return FColorBorder; }
    void SetColorBorder(TColor Value) { Change(FColorBorder, Value); }
    void SetImageList(TCustomImageList* List) override;

    /// The height of caption and description together, in pixels. Works without a window, too.
    [[nodiscard]] int GetTextHeight();
    /// The place of caption and description from edge to edge, in client pixels, as high as the button.
    [[nodiscard]] TRect GetTextArea() const;

protected:
    void Paint() override;
    void DrawBackground() override;
    void DrawCaption(UINT Flags, TRect& Rect) override;
    virtual void DrawBorder();
    /// Draws the bitmap into the middle of the rectangle, moved right by the horizontal margin.
    virtual void DrawBitmap(const TRect& Rect, TCanvas& Canvas, TBitmap& Bitmap);
    /// Draws the image of the state at the left edge.
    virtual void DrawImageFromList(TButtonExState State);
    virtual void DrawDescription(UINT Flags, TRect& Rect);

private:
    void DoDescriptionChange(TObject*) { Invalidate(); }
    void DescriptionFontChanged(TObject* sender);
    void FollowCaptionSize();
    [[nodiscard]] bool IsLit() const { return GetState() >= bexPressed; }
    [[nodiscard]] TRect TextBlock();
    void FetchImage(TButtonExState state);
    void DrawLine(StringView text, const TRect& rect, UINT flags, TColor color);

    TAlignment FAlignment = taLeftJustify;
    int FMarginHorizontal = 0;
    int FMarginVertical = 0;
    int FSpacing = 0;
    int FOffsetVertical = 0;
    int FOffsetHorizontal = 0;
    bool FKeepColors = false;
    std::unique_ptr<TStringList> FDescription;
    std::unique_ptr<TFont> FFontDescription;
    TColor FColorHovered = clNone;
    TColor FColorBorder = clNone;

    TChangeLink FImagesLink;
    std::unique_ptr<TBitmap> FImage;         ///< The image fetched last; made on first use.
    TButtonExState FImageState = bexNormal;  ///< Of which state it is.
    bool FImageIsStale = true;
    bool FFollowingSize = false;
};

/// The button of the palette.
class TQV7SkinButtonMsgDlg : public TCustomQV7SkinButtonMsgDlg {
public:
    using TCustomQV7SkinButtonMsgDlg::TCustomQV7SkinButtonMsgDlg;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace qv7skin
