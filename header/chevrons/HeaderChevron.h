#pragma once

#include <array>
#include <memory>

#include "header/chevrons/HeaderChevronBase.h"
#include "skin/utils/TransparentBitmap.h"

namespace qv7skin {

class TQV7SkinHeaderControl;

/// The chevron of header and tab controls: three buttons that open the menu in `ChevronDropDown` and scroll
/// back and on, with Ctrl held to the first and to the last item.
class TQV7SkinHeaderChevron : public TQV7SkinHeaderChevronBase {
public:
    /// 52 x 21 pixels with the shipped pictures. The owner is the header control.
    explicit TQV7SkinHeaderChevron(TQV7SkinHeaderControl* AOwner);
    ~TQV7SkinHeaderChevron() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    enum TButton { cbDropDown, cbLeft, cbRight };
    static constexpr int ButtonCount = 3;

    [[nodiscard]] TQV7SkinHeaderControl* GetHeaderControl() const;
    /// The place of a button in client pixels.
    [[nodiscard]] TRect GetButtonRect(int Button) const;
    /// The button under the mouse pointer, or -1.
    [[nodiscard]] int MouseInButton() const;

    void DoFFPaint() override;

    // --- what the buttons do
    virtual void DoDropDown();
    virtual void DoFirst();
    virtual void DoLast();
    virtual void DoPrior();
    virtual void DoNext();

protected:
    void Dispatch(TMessage& message) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;

private:
    enum TPicture { cpDefault, cpHovered, cpDisabled };
    using TPictures = std::array<std::unique_ptr<TTransparentBitmap>, 3>;

    [[nodiscard]] TPicture PictureOf(int Button, int Hovered) const;
    void PressButton(int Button, TShiftState Shift);

    std::unique_ptr<TBitmap> FTop;
    std::unique_ptr<TBitmap> FBottom;
    std::array<TPictures, ButtonCount> FButtons;
};

}  // namespace qv7skin
