#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/vcl/controls/ControlTypes.h"
#include "platform/vcl/core/Component.h"
#include "platform/vcl/core/StringList.h"
#include "platform/vcl/core/WindowsApi.h"
#include "platform/vcl/graphics/Handles.h"

namespace vcl {

class TCustomForm;
class TWinControl;

/// The screen and what the program has on it: forms, the focus, cursors, fonts. Obtained with `Screen()`.
class TScreen : public TComponent {
public:
    ~TScreen() override;
    [[nodiscard]] const TMetaClass& ClassType() const override { return StaticClass(); }
    [[nodiscard]] static const TMetaClass& StaticClass();

    /// Pixels of the primary monitor.
    [[nodiscard]] int GetWidth() const;
    [[nodiscard]] int GetHeight() const;
    /// All monitors together, in pixels of the primary one.
    [[nodiscard]] TRect GetDesktopRect() const;
    /// The primary monitor without task bars.
    [[nodiscard]] TRect GetWorkAreaRect() const;
    /// The monitor on which the larger part of the rectangle lies (or which is nearest), without task bars.
    [[nodiscard]] TRect GetWorkAreaRect(const TRect& nearest) const;
    [[nodiscard]] int GetPixelsPerInch() const;
    /// Names of the installed fonts, sorted; read when first asked for.
    [[nodiscard]] const TStrings& GetFonts();

    /// Forms in the order of their last activation, the latest first.
    [[nodiscard]] int GetFormCount() const { return static_cast<int>(FForms.size()); }
    [[nodiscard]] TCustomForm* GetForm(int index) const;
    [[nodiscard]] const std::vector<TCustomForm*>& Forms() const { return FForms; }
    [[nodiscard]] bool HasForm(const TCustomForm* form) const;
    /// The form that has the focus or had it last; null before the first one got it.
    [[nodiscard]] TCustomForm* GetActiveForm() const { return FActiveForm; }
    /// The control that has the focus or had it last in the active form.
    [[nodiscard]] TWinControl* GetActiveControl() const { return FActiveControl; }

    /// The cursor shown over all windows of the program; crDefault: each control's own.
    [[nodiscard]] TCursor GetCursor() const { return FCursor; }
    void SetCursor(TCursor value);
    /// The handle of a cursor number; unknown numbers give the arrow, crNone none. Not owned by the caller.
    [[nodiscard]] HCURSOR GetCursorHandle(TCursor index) const;
    /// Registers a cursor under a number of the program's own (or replaces a built-in one). The screen owns
    /// the handle from here on and destroys it when it is replaced; 0 removes it.
    void SetCursorHandle(TCursor index, HCURSOR handle);

    TNotifyEvent OnActiveFormChange;
    TNotifyEvent OnActiveControlChange;

private:
    friend TScreen& Screen();
    friend class TApplication;
    friend class TCustomForm;

    TScreen();
    void AddForm(TCustomForm* form);
    void RemoveForm(TCustomForm* form);
    /// Notes that the control got the focus; raises the events of what changed.
    void FocusMoved(TCustomForm* form, TWinControl* control);
    /// The control, or a control on it, is gone or can't have the focus any more.
    void FocusLost(const TWinControl* control);
    /// Raises an event from places that must not fail, such as destructors.
    void Tell(const TNotifyEvent& event);
    void ApplyCursor() const;

    std::map<TCursor, TCursorHandle> FCursors;
    std::unique_ptr<TStringList> FFonts;
    std::vector<TCustomForm*> FForms;
    TCustomForm* FActiveForm = nullptr;
    TCustomForm* FFocusedForm = nullptr;  ///< Got CM_ACTIVATE and not yet CM_DEACTIVATE.
    unsigned FFocusMoves = 0;             ///< Counts them, so that a handler that moves the focus is noticed.
    TWinControl* FActiveControl = nullptr;
    TCursor FCursor = crDefault;
};

/// The screen of the process, made on first use.
[[nodiscard]] TScreen& Screen();
/// Frees the screen; part of `DoneApplication`.
void DoneScreen();

}  // namespace vcl
