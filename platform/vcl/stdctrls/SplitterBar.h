#pragma once

#include "platform/vcl/core/Geometry.h"

namespace vcl {

class TWinControl;

/// Inverts a bar over the parent and all that stands on it, every pixel or (`dotted`) every other one. The
/// same call again takes it away. `bar` is in client pixels of the parent.
void InvertSplitterBar(TWinControl& parent, const TRect& bar, bool dotted);

}  // namespace vcl
