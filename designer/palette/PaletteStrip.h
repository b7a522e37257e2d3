#pragma once

#include "designer/Namespace.h"
#include "platform/vcl/controls/CustomControl.h"
#include "platform/vcl/streaming/ClassRegistry.h"

namespace designer {

/// A row of component classes as icons, after an arrow that stands for choosing. One of them is pressed.
class TPaletteStrip : public TCustomControl {
public:
    explicit TPaletteStrip(TComponent* AOwner);
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The classes to show, in their order. Presses the arrow.
    void SetClasses(TClassList classes);
    [[nodiscard]] const TClassList& Classes() const { return FClasses; }
    /// The pressed class; null for the arrow.
    [[nodiscard]] const TMetaClass* GetChosen() const;
    void SetChosen(const TMetaClass* value);
    /// The class was pressed with Shift: it stays pressed until the arrow or Esc.
    [[nodiscard]] bool KeepsChosen() const { return FKeeps; }
    /// Where the class at the index stands; -1 for the arrow.
    [[nodiscard]] static TRect CellOf(int index);

    /// Another cell was pressed by the user.
    TNotifyEvent OnChoose;
    /// The pressed class was clicked twice: a component of it is wanted at once.
    TNotifyEvent OnPlace;

protected:
    void Paint() override;
    void Dispatch(TMessage& message) override;
    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;
    void DblClick() override;
    void MouseMove(TShiftState shift, int x, int y) override;
    void MouseLeave() override;

private:
    static constexpr int None = -2;
    [[nodiscard]] int IndexAt(int x, int y) const;
    void SetHot(int index);
    void DrawCell(int index);

    TClassList FClasses;
    int FChosen = -1;
    int FHot = None;
    bool FKeeps = false;
};

}  // namespace designer
