#pragma once

#include "platform/vcl/controls/GraphicControl.h"

namespace vcl {

class TActionClientItem;
class TCustomActionBar;
class TCustomImageList;

/// Shows one item on a bar. The bar makes it by its class, gives it its item, asks it for its size and paints
/// it; it never outlives the bar.
class TCustomActionControl : public TGraphicControl {
public:
    explicit TCustomActionControl(TComponent* AOwner);
    ~TCustomActionControl() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The item; null after it was freed.
    [[nodiscard]] TActionClientItem* GetActionClient() const { return FActionClient; }
    void SetActionClient(TActionClientItem* value);
    [[nodiscard]] TCustomActionBar* GetActionBar() const;
    /// Whether it is highlighted.
    [[nodiscard]] bool GetSelected() const { return FSelected; }
    void SetSelected(bool value);
    /// Sets the size that the item needs.
    virtual void CalcBounds() = 0;
    /// Takes over what changed in the item.
    virtual void ItemChanged();
    /// Text with its mnemonic, the text of the short cut, the images and whether the item can be chosen.
    [[nodiscard]] String ItemCaption() const;
    [[nodiscard]] String ItemShortCut() const;
    [[nodiscard]] TCustomImageList* ItemImages() const;
    [[nodiscard]] bool IsSeparator() const;
    [[nodiscard]] bool IsItemEnabled() const;
    [[nodiscard]] bool HasSubmenu() const;

protected:
    void Paint() override;
    virtual void DrawBackground(const TRect& rect) = 0;
    virtual void DrawGlyph(const TRect& rect) = 0;
    virtual void DrawItemText(const TRect& rect) = 0;
    virtual void DrawSeparator(const TRect& rect) = 0;

private:
    TActionClientItem* FActionClient = nullptr;
    bool FSelected = false;
};

}  // namespace vcl
