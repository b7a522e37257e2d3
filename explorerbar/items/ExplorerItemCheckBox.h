#pragma once

#include "explorerbar/items/ExplorerItemLink.h"
#include "platform/vcl/core/Geometry.h"

namespace qv7skin {

/// A box to tick, with a caption beside it that is wrapped.
class TQV7SkinExplorerItemCheckBox : public TQV7SkinExplorerItemLink {
public:
    TQV7SkinExplorerItemCheckBox();
    /// The second argument says nothing; it keeps the place of an icon's index.
    TQV7SkinExplorerItemCheckBox(const String& Caption, int IconIndex, const String& Hint, bool Checked,
                                 bool Enabled, bool Flat);

    [[nodiscard]] bool GetChecked() const { return FChecked; }
    void SetChecked(bool Value) { Change(FChecked, Value); }
    /// Whether the box takes the focus and shows itself as one to be ticked; true at first. A click toggles
    /// it either way.
    [[nodiscard]] bool GetEnabled() const { return FEnabled; }
    void SetEnabled(bool Value) { Change(FEnabled, Value); }
    /// Whether the box has a line for an edge (as at first) or the system's.
    [[nodiscard]] bool GetFlat() const { return FFlat; }
    void SetFlat(bool Value) { Change(FFlat, Value); }
    /// The height of the box and the place of the caption beside it, in pixels; known once painted.
    [[nodiscard]] int GetBoxHeight() const { return FBoxHeight; }
    [[nodiscard]] int GetTextIndent() const { return FTextIndent; }

    void Draw(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Measure(TBitmap& Bitmap, int& Left, int& Top, int& Width) override;
    void Place(TBitmap& Bitmap, int Left, int Top, int Width) override;
    /// Painting takes narrower rows than measuring, and bold ones when checked.
    [[nodiscard]] bool PaintsAsMeasured() const override { return false; }
    [[nodiscard]] bool GetCanFocus() const override { return FVisible && FEnabled; }
    /// Toggles the box, then raises `OnClick`.
    void DoClick() override;

private:
    void Run(TBitmap& Bitmap, int Left, int& Top, int Width, bool Painting);
    void SetFont(TCanvas& Canvas) const;

    bool FChecked = false;
    bool FEnabled = true;
    bool FFlat = true;
    int FBoxHeight = 0;
    int FTextIndent = 0;
};

}  // namespace qv7skin
