#pragma once

#include "platform/vcl/controls/CustomControl.h"
#include "platform/vcl/stdctrls/TextTypes.h"

namespace vcl {

/// A surface for other controls, with two bevels, a border between them and a caption in the middle.
/// `TPanel` publishes the properties. The window's own bevels and border (`BevelKind`, `BorderWidth` of
/// TWinControl) are not used: a panel draws its bevels inside the client area, where children may overlap
/// them unless they are aligned.
class TCustomPanel : public TCustomControl {
public:
    explicit TCustomPanel(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    [[nodiscard]] TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment value);
    [[nodiscard]] TTextLayout GetVerticalAlignment() const { return FVerticalAlignment; }
    void SetVerticalAlignment(TTextLayout value);
    /// The inner and the outer bevel: none, sunken, raised, or just the room for one.
    [[nodiscard]] TBevelCut GetBevelInner() const { return FBevelInner; }
    void SetBevelInner(TBevelCut value);
    [[nodiscard]] TBevelCut GetBevelOuter() const { return FBevelOuter; }
    void SetBevelOuter(TBevelCut value);
    /// Pixels of each bevel; at least 1.
    [[nodiscard]] TBevelWidth GetBevelWidth() const { return FBevelWidth; }
    void SetBevelWidth(TBevelWidth value);
    /// Pixels between the bevels.
    [[nodiscard]] TBorderWidth GetBorderWidth() const { return FBorderWidth; }
    void SetBorderWidth(TBorderWidth value);
    /// A line of the system around everything (bsSingle) or none (bsNone).
    [[nodiscard]] TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle value);
    [[nodiscard]] bool GetFullRepaint() const { return FFullRepaint; }
    /// Whether a change of size repaints all (true) or only what became visible.
    void SetFullRepaint(bool value) { FFullRepaint = value; }
    [[nodiscard]] bool GetShowCaption() const { return FShowCaption; }
    void SetShowCaption(bool value);
    void SetParentBackground(bool value) override;

protected:
    void Dispatch(TMessage& message) override;
    void CreateParams(TCreateParams& params) override;
    [[nodiscard]] TRect GetFrameInsets() const override;
    void AdjustClientRect(TRect& rect) override;
    bool CanAutoSize(int& newWidth, int& newHeight) override;
    void Paint() override;

private:
    [[nodiscard]] int BevelExtent() const;
    void SizeChanged();
    void DrawCaption(TRect rect);
    void BorderChanged();

    TAlignment FAlignment = taCenter;
    TTextLayout FVerticalAlignment = tlCenter;
    TBevelCut FBevelInner = bvNone;
    TBevelCut FBevelOuter = bvRaised;
    TBevelWidth FBevelWidth = 1;
    TBorderWidth FBorderWidth = 0;
    TBorderStyle FBorderStyle = bsNone;
    TSize FPaintedSize;
    bool FFullRepaint = true;
    bool FShowCaption = true;
};

/// The panel for forms.
class TPanel : public TCustomPanel {
public:
    using TCustomPanel::TCustomPanel;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
};

}  // namespace vcl
