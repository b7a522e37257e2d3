#include "platform/tms/AdvGlowButton.h"

#include <algorithm>

#include "platform/tms/GlowFace.h"
#include "platform/vcl/core/DefineClass.h"
#include "platform/vcl/graphics/TextLayout.h"

namespace tms {
namespace {

/// Pixels between the edges of the button and its content.
constexpr int Margin = 6;
/// Pixels between the edges of the button and the focus frame.
constexpr int FocusMargin = 3;

/// Flags to lay the caption out; what does not fit is cut with dots when it is drawn.
UINT CaptionFlags(const String& caption) {
    return caption.find(L'\n') == String::npos ? DT_SINGLELINE : 0U;
}

/// Replaces each pixel by the mean of itself and the one in `other`, a bitmap of the same size.
void FadeHalf(TBitmap& bitmap, const TBitmap& other) {
    const TBitmapBits bits = bitmap.WriteBits();
    const TConstBitmapBits before = other.ReadBits();
    for (int y = 0; y < bits.Height; ++y)
        for (int x = 0; x < bits.Width; ++x)
            bits.SetColor(x, y, BlendColors(bits.GetColor(x, y), before.GetColor(x, y), 128));
}

}  // namespace

/// Sizes and places of picture and caption, in pixels of the button.
struct TAdvGlowButton::TContent {
    TRect Picture;
    TRect Text;
    [[nodiscard]] bool HasBoth() const { return !Picture.IsEmpty() && !Text.IsEmpty(); }
};

const TMetaClass& TAdvGlowButton::StaticClass() {
    static const TMetaClass meta =
        DefineClass<TAdvGlowButton>(L"TAdvGlowButton", TPushControl::StaticClass());
    return meta;
}

TAdvGlowButton::TAdvGlowButton(TComponent* AOwner) : TPushControl(AOwner) {
    FAppearance.OnChange = [this](TObject*) { Invalidate(); };
    FPicture.OnChange = [this](TObject*) { ContentChanged(); };
    SetBounds(GetLeft(), GetTop(), 100, 41);
}

TAdvGlowButton::~TAdvGlowButton() = default;

void TAdvGlowButton::SetStyle(TAdvButtonStyle value) {
    if (FStyle == value) return;
    FStyle = value;
    Invalidate();
}

void TAdvGlowButton::SetRounded(bool value) {
    if (FRounded == value) return;
    FRounded = value;
    Invalidate();
}

void TAdvGlowButton::SetTransparent(bool value) {
    if (GetTransparent() == value) return;
    SetParentBackground(value);
    Invalidate();
}

void TAdvGlowButton::SetLayout(TButtonLayout value) {
    if (FLayout == value) return;
    FLayout = value;
    ContentChanged();
}

void TAdvGlowButton::SetSpacing(int value) {
    if (FSpacing == value) return;
    FSpacing = value;
    ContentChanged();
}

void TAdvGlowButton::SetAutoSize(bool value) {
    if (GetAutoSize() == value) return;
    TPushControl::SetAutoSize(value);
    AdjustSize();
}

void TAdvGlowButton::ContentChanged() {
    AdjustSize();
    Invalidate();
}

void TAdvGlowButton::Loaded() {
    TPushControl::Loaded();
    AdjustSize();
}

void TAdvGlowButton::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    TPushControl::Dispatch(message);
    if ((message.Msg == CM_TEXTCHANGED || message.Msg == CM_FONTCHANGED) && guard.IsAlive()) AdjustSize();
}

// --- content

void TAdvGlowButton::SelectCaptionFont(TCanvas& canvas) const {
    TFont& font = canvas.GetFont();
    font.Assign(&GetFont());
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (FAppearance.GetSystemFont() &&
        ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
        font.SetLogFont(metrics.lfMessageFont);
    const TColor color = FAppearance.GetColors(GetColorGroup()).Text;
    if (color != clDefault) font.SetColor(color);
}

TAdvGlowButton::TContent TAdvGlowButton::MeasureContent(TCanvas& canvas) const {
    TContent content;
    content.Picture = TRect::OfSize(0, 0, FPicture.GetWidth(), FPicture.GetHeight());
    const String caption = GetCaption();
    if (caption.empty()) return content;
    const TSize text = MeasureText(canvas, caption, CaptionFlags(caption));
    content.Text = TRect::OfSize(0, 0, text.Width, text.Height);
    return content;
}

bool TAdvGlowButton::CanAutoSize(int& newWidth, int& newHeight) {
    TBitmap measuring(1, 1);
    SelectCaptionFont(measuring.GetCanvas());
    const TContent content = MeasureContent(measuring.GetCanvas());
    const int gap = content.HasBoth() ? FSpacing : 0;
    const TRect &picture = content.Picture, &text = content.Text;
    const bool isBeside = FLayout == blGlyphLeft || FLayout == blGlyphRight;
    newWidth = isBeside ? picture.Right + gap + text.Right : std::max(picture.Right, text.Right);
    newHeight = isBeside ? std::max(picture.Bottom, text.Bottom) : picture.Bottom + gap + text.Bottom;
    newWidth += 2 * Margin;
    newHeight += 2 * Margin;
    const TLifeGuard guard(*this);
    OnSetButtonSize(this, newWidth, newHeight);
    return guard.IsAlive();
}

void TAdvGlowButton::PlaceContent(TContent& content) const {
    const TRect client = GetClientRect();
    const int gap = content.HasBoth() ? FSpacing : 0;
    const bool isBeside = FLayout == blGlyphLeft || FLayout == blGlyphRight;
    const int room = client.Right - 2 * Margin;
    // A caption that is too long is cut, not the picture.
    content.Text.Right =
        std::max(0, std::min(content.Text.Right, isBeside ? room - content.Picture.Right - gap : room));

    const int width = isBeside ? content.Picture.Right + gap + content.Text.Right
                               : std::max(content.Picture.Right, content.Text.Right);
    const int height = isBeside ? std::max(content.Picture.Bottom, content.Text.Bottom)
                                : content.Picture.Bottom + gap + content.Text.Bottom;
    const TAlignment alignment = GetContentAlignment();
    const int left = alignment == taLeftJustify    ? Margin
                     : alignment == taRightJustify ? client.Right - Margin - width
                                                   : (client.Right - width) / 2;
    const int top = (client.Bottom - height) / 2;
    const bool pictureFirst = FLayout == blGlyphLeft || FLayout == blGlyphTop;
    TRect& first = pictureFirst ? content.Picture : content.Text;
    TRect& second = pictureFirst ? content.Text : content.Picture;
    if (isBeside) {
        second.Offset(left + first.Right + gap, top + (height - second.Bottom) / 2);
        first.Offset(left, top + (height - first.Bottom) / 2);
    } else {
        second.Offset(left + (width - second.Right) / 2, top + first.Bottom + gap);
        first.Offset(left + (width - first.Right) / 2, top);
    }
}

// --- painting

TGlowGroup TAdvGlowButton::GetColorGroup() const {
    switch (GetPushState()) {
        case pshDisabled:
            return glowDisabled;
        case pshPressed:
            return glowDown;
        case pshHot:
            return glowHot;
        case pshDown:
        case pshDownHot:
            return FStyle == absToggle ? glowChecked : glowDown;
        default:
            return glowNormal;
    }
}

void TAdvGlowButton::DrawPicture(const TRect& rect) {
    TCanvas& canvas = GetCanvas();
    if (GetPushState() != pshDisabled) return canvas.Draw(rect.Left, rect.Top, FPicture.GetGraphic());
    TBitmap picture(rect.Width(), rect.Height(), pf32bit);
    picture.GetCanvas().CopyRect(TRect::OfSize(0, 0, rect.Width(), rect.Height()), canvas, rect);
    TBitmap face;
    face.Assign(&picture);
    picture.GetCanvas().Draw(0, 0, FPicture.GetGraphic());
    FadeHalf(picture, face);
    canvas.Draw(rect.Left, rect.Top, &picture);
}

void TAdvGlowButton::Paint() {
    const bool isHot = GetPushState() == pshHot || GetPushState() == pshDownHot;
    PaintGlowFace(FaceBits(), FAppearance.GetColors(GetColorGroup()), FRounded, isHot);

    TCanvas& canvas = GetCanvas();
    SelectCaptionFont(canvas);
    canvas.GetBrush().SetStyle(bsClear);
    TContent content = MeasureContent(canvas);
    PlaceContent(content);
    if (!content.Picture.IsEmpty()) DrawPicture(content.Picture);
    const String caption = GetCaption();
    if (!content.Text.IsEmpty())
        DrawTextCentered(canvas, content.Text, caption, CaptionFlags(caption) | DT_CENTER | DT_END_ELLIPSIS);
    if (IsFocusShown()) {
        TRect frame = GetClientRect();
        frame.Inflate(-FocusMargin, -FocusMargin);
        canvas.DrawFocusRect(frame);
    }
}

}  // namespace tms

std::span<const wchar_t* const> vcl::TEnumNames<tms::TAdvButtonStyle>::Names() {
    static constexpr const wchar_t* names[] = {L"absButton", L"absToggle"};
    return names;
}

std::span<const wchar_t* const> vcl::TEnumNames<tms::TButtonLayout>::Names() {
    static constexpr const wchar_t* names[] = {L"blGlyphLeft", L"blGlyphTop", L"blGlyphRight",
                                               L"blGlyphBottom"};
    return names;
}
