#pragma once

#include "platform/vcl/actions/ActionControl.h"
#include "platform/vcl/graphics/Color.h"

namespace vcl {

/// An item of a menu that drops down: a column for pictures, caption, short cut, arrow.
class TCustomMenuItem : public TCustomActionControl {
public:
    using TCustomActionControl::TCustomActionControl;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void CalcBounds() override;

protected:
    void DrawGlyph(const TRect& rect) override;
    void DrawItemText(const TRect& rect) override;
    void DrawSeparator(const TRect& rect) override;
    [[nodiscard]] virtual TColor TextColor() const = 0;
};

/// A caption in the bar.
class TCustomMenuButton : public TCustomActionControl {
public:
    using TCustomActionControl::TCustomActionControl;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();
    void CalcBounds() override;

protected:
    void DrawGlyph(const TRect& rect) override;
    void DrawItemText(const TRect& rect) override;
    void DrawSeparator(const TRect& rect) override;
    [[nodiscard]] virtual TColor TextColor() const = 0;
};

/// Flat: a white menu with a grey column, and a framed highlight.
class TXPStyleMenuItem : public TCustomMenuItem {
public:
    using TCustomMenuItem::TCustomMenuItem;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    void DrawBackground(const TRect& rect) override;
    [[nodiscard]] TColor TextColor() const override;
};

/// The flat look in the bar: a framed highlight on the bar's face.
class TXPStyleMenuButton : public TCustomMenuButton {
public:
    using TCustomMenuButton::TCustomMenuButton;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    void DrawBackground(const TRect& rect) override;
    [[nodiscard]] TColor TextColor() const override;
};

/// In the colours of the system's menus.
class TThemedMenuItem : public TCustomMenuItem {
public:
    using TCustomMenuItem::TCustomMenuItem;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    void DrawBackground(const TRect& rect) override;
    [[nodiscard]] TColor TextColor() const override;
};

/// The bar's counterpart of `TThemedMenuItem`.
class TThemedMenuButton : public TCustomMenuButton {
public:
    using TCustomMenuButton::TCustomMenuButton;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

protected:
    void DrawBackground(const TRect& rect) override;
    [[nodiscard]] TColor TextColor() const override;
};

}  // namespace vcl
