#include "platform/vcl/graphics/TextLayout.h"

namespace vcl {

TSize MeasureText(TCanvas& canvas, StringView text, UINT flags, int width) {
    TRect space{0, 0, width, 0};
    canvas.TextRect(space, text, flags | DT_CALCRECT);
    return {space.Width(), space.Height()};
}

void DrawTextCentered(TCanvas& canvas, const TRect& rect, StringView text, UINT flags) {
    const int height = MeasureText(canvas, text, flags, rect.Width()).Height;
    TRect place = rect;
    place.Top += (rect.Height() - height) / 2;
    canvas.TextRect(place, text, flags);
}

String StripHotkey(StringView text) {
    String plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'&' && ++i == text.size()) break;
        plain += text[i];
    }
    return plain;
}

}  // namespace vcl
