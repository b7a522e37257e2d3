#pragma once

#include "platform/vcl/controls/CustomControl.h"

namespace vcl {

/// What is known about a hint before it shows; the receiver of CM_HINTSHOW may change all of it.
struct THintInfo {
    TControl* HintControl = nullptr;
    TPoint HintPos;        ///< Top left of the hint in screen pixels.
    int HintMaxWidth = 0;  ///< Pixels; longer texts wrap.
    TColor HintColor{};
    TRect CursorRect;       ///< Client pixels; leaving it ends the hint.
    TPoint CursorPos;       ///< The pointer in client pixels.
    int ReshowTimeout = 0;  ///< Milliseconds after which the hint is asked for again; 0: never.
    int HideTimeout = 0;    ///< Milliseconds that it stays.
    String HintStr;
};

/// The popup in which a hint is shown. Never activates, lets the mouse through, and is no child of anything.
class THintWindow : public TCustomControl {
public:
    explicit THintWindow(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Shows the text in the rectangle (screen pixels), moved so that it lies on the screen.
    virtual void ActivateHint(TRect rect, const String& hint);
    /// The size that the text needs, from (0, 0); texts wider than `maxWidth` pixels wrap.
    [[nodiscard]] virtual TRect CalcHintRect(int maxWidth, const String& hint);
    /// True when the message ends the hint: keys, clicks, activation.
    [[nodiscard]] virtual bool IsHintMsg(const MSG& message) const;
    /// Hides the window.
    void ReleaseHandle();

protected:
    void CreateParams(TCreateParams& params) override;
    void Dispatch(TMessage& message) override;
    void Paint() override;
};

/// The part of a hint before the first '|', shown in the popup.
[[nodiscard]] String GetShortHint(const String& hint);
/// The part after the first '|', or all of it when there is none; for status bars.
[[nodiscard]] String GetLongHint(const String& hint);

}  // namespace vcl
