#pragma once

#include <memory>

#include "explorerbar/FormQV7SkinPopupFormBase.h"
#include "platform/vcl/core/Sets.h"
#include "platform/vcl/forms/ApplicationEvents.h"

namespace qv7skin {

/// The edges by which the user may size a popup form.
enum class TPopupResizeDirection { rdLeft, rdRight, rdBottom };
using TPopupResizeDirections = TSet<TPopupResizeDirection>;
using enum TPopupResizeDirection;

/// A window that opens next to a control, as every drop-down does: it closes on Escape and when another form
/// becomes active, unless it was detached and has a border. The user sizes it by its edges, as
/// `ResizeDirection` allows.
///
/// Hosts derive their drop-downs from it and put controls on them. The form belongs to `AttachedTo`, its
/// owner at first.
class TQV7SkinPopupForm : public TfrmQV7SkinPopupFormBase {
public:
    explicit TQV7SkinPopupForm(TComponent* AOwner);
    ~TQV7SkinPopupForm() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// The form's ear at the application. Nothing is bound to it: bind its `OnDeactivate` to
    /// `ApplicationEventsDeactivate` for a popup that closes when another program becomes active.
    [[nodiscard]] TApplicationEvents& GetApplicationEvents() const { return *FApplicationEvents; }
    /// Right and bottom at first. With both side edges the left one sizes at the right, too.
    [[nodiscard]] TPopupResizeDirections GetResizeDirection() const { return FResizeDirection; }
    void SetResizeDirection(TPopupResizeDirections Value) { FResizeDirection = Value; }
    /// Whether the form opens inset by `PopupMargin` pixels at both sides and one pixel higher.
    [[nodiscard]] bool GetShowPopupWithMargin() const { return FShowPopupWithMargin; }
    void SetShowPopupWithMargin(bool Value) { FShowPopupWithMargin = Value; }
    /// Pixels at each side; 3 at first.
    [[nodiscard]] int GetPopupMargin() const { return FPopupMargin; }
    void SetPopupMargin(int Value) { FPopupMargin = Value; }

    /// Closes the form.
    virtual void ApplicationEventsDeactivate(TObject* Sender);
    /// Opens the form right below the control, at least as wide as that. The control's form keeps the look of
    /// the active one.
    virtual void ShowAtControl(TControl* Control);
    /// The same at a point in client pixels of the control.
    virtual void ShowAtControl(TControl* Control, TPoint Point);
    virtual void ShowAtControl(TControl* Control, int X, int Y);

    [[nodiscard]] bool CloseQuery() override;

protected:
    void Deactivate() override;
    void MouseMove(TShiftState shift, int x, int y) override;
    void MouseDown(TMouseButton button, TShiftState shift, int x, int y) override;

private:
    [[nodiscard]] TCursor SizingCursorAt(int x, int y) const;
    [[nodiscard]] WPARAM SizingCommand() const;

    std::unique_ptr<TApplicationEvents> FApplicationEvents;
    TPopupResizeDirections FResizeDirection{rdRight, rdBottom};
    bool FShowPopupWithMargin = false;
    int FPopupMargin = 3;
};

/// Closes every popup form that is attached to the form and visible.
void CloseFormsAttachedTo(const TCustomForm* Form);

}  // namespace qv7skin

template <>
struct vcl::TEnumNames<qv7skin::TPopupResizeDirection> {
    static std::span<const wchar_t* const> Names();
};
