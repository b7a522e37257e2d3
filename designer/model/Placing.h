#pragma once

#include <optional>

#include "designer/model/DesignDocument.h"
#include "platform/vcl/controls/WinControl.h"

namespace designer {

/// The control that would take a new control put on `control`: itself when it accepts controls, else the next
/// one above that does.
[[nodiscard]] TWinControl& AcceptingParent(TControl& control);

/// Puts a new component of the class on the form, chooses it and returns it. A control comes into `parent`,
/// at `place` in its client pixels; an empty rectangle gives it the size that it comes with. Other components
/// stand at the corner of `place`, counted from the form. Raises what the class's constructor raises.
TComponent* Place(TDesignDocument& document, const TMetaClass& classType, TWinControl& parent,
                  const TRect& place);

/// Frees what is chosen, with all that stands in it.
void DeleteSelection(TDesignDocument& document);

/// Gives a component another name, or the form itself when `component` is the root. Raises EComponentError
/// when it is no identifier or taken.
void Rename(TDesignDocument& document, TComponent& component, const String& name);

/// Where a component without a window or surface of its own stands on the form.
[[nodiscard]] TPoint DesignPlace(const TComponent& component);
void SetDesignPlace(TComponent& component, TPoint place);

}  // namespace designer
