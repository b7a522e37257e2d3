#include "platform/flatstyle/FlatGroupBox.h"

#include "platform/vcl/controls/PublishedRows.h"
#include "platform/vcl/graphics/Canvas.h"
#include "platform/vcl/graphics/TextLayout.h"

namespace flatstyle {
namespace {

constexpr int CaptionLeft = 8;
constexpr int CaptionRoom = 2;  ///< Pixels between the caption and the line at both sides.

}  // namespace

const TMetaClass& TFlatGroupBox::StaticClass() {
    using C = TFlatGroupBox;
    static const TMetaClass meta =
        DefineClass<C>(L"TFlatGroupBox", TCustomControl::StaticClass())
            .With(PlacementRows)
            .With(ParentColorRows)
            .With(FontRows)
            .With(StateRows)
            .Property(L"Caption", &C::GetCaption, &C::SetCaption)
            .Stored(&C::IsCaptionStored)
            .Property(L"ColorBorder", &C::GetColorBorder, &C::SetColorBorder, TColor{0x008396A0})
            .Identifiers(ColorIdentifiers())
            .Property(L"TabOrder", &C::GetTabOrder, &C::SetTabOrder, -1)
            .Property(L"TabStop", &C::GetTabStop, &C::SetTabStop, false)
            .With(MouseRows)
            .With(ResizeRows)
            .Event(L"OnEnter", &C::OnEnter)
            .Event(L"OnExit", &C::OnExit);
    return meta;
}

TFlatGroupBox::TFlatGroupBox(TComponent* AOwner) : TCustomControl(AOwner) {
    ControlStyle = {csAcceptsControls, csCaptureMouse, csClickEvents,
                    csSetCaption,      csDoubleClicks, csReplicatable};
    SetBounds(0, 0, 185, 105);
}

void TFlatGroupBox::SetColors(int Index, TColor Value) {
    if (FColors.Set(Index, Value)) Invalidate();
}

int TFlatGroupBox::CaptionHeight() {
    if (!HandleAllocated()) return std::max(-GetFont().GetHeight() * 5 / 4, 0);
    TCanvas& canvas = GetCanvas();
    canvas.SetFont(GetFont());
    return canvas.TextHeight(L"0");
}

void TFlatGroupBox::AdjustClientRect(TRect& rect) {
    TCustomControl::AdjustClientRect(rect);
    rect.Top += CaptionHeight();
    rect.Inflate(-1, -1);
}

void TFlatGroupBox::Resize() {
    Invalidate();
    TCustomControl::Resize();
}

void TFlatGroupBox::Paint() {
    TCanvas& canvas = GetCanvas();
    const String caption = GetCaption();
    TRect frame = GetClientRect();
    frame.Top += CaptionHeight() / 2;
    canvas.GetBrush().SetStyle(bsSolid);
    canvas.GetBrush().SetColor(GetColors(BorderColorIndex));
    canvas.FrameRect(frame);
    if (caption.empty()) return;
    canvas.SetFont(GetFont());
    if (!GetEnabled()) canvas.GetFont().SetColor(clGrayText);
    const TSize size = MeasureText(canvas, caption, DT_SINGLELINE);
    TRect text = TRect::OfSize(CaptionLeft, 0, size.Width, size.Height);
    TRect gap = text;
    gap.Inflate(CaptionRoom, 0);
    canvas.GetBrush().SetColor(GetColor());
    canvas.FillRect(gap);
    canvas.GetBrush().SetStyle(bsClear);
    canvas.TextRect(text, caption, DT_SINGLELINE | DT_LEFT);
}

void TFlatGroupBox::Dispatch(TMessage& message) {
    const TLifeGuard guard(*this);
    switch (message.Msg) {
        case CM_DIALOGCHAR:
            if (IsAccel(static_cast<wchar_t>(message.CharCode()), GetCaption()) && CanFocus()) {
                message.Result = 1;
                return SelectFirst();
            }
            return TCustomControl::Dispatch(message);
        case CM_TEXTCHANGED:
        case CM_ENABLEDCHANGED:
            TCustomControl::Dispatch(message);
            if (guard.IsAlive()) Invalidate();
            return;
        case CM_FONTCHANGED:
            TCustomControl::Dispatch(message);
            if (guard.IsAlive()) Realign();
            if (guard.IsAlive()) Invalidate();
            return;
        default:
            return TCustomControl::Dispatch(message);
    }
}

}  // namespace flatstyle
