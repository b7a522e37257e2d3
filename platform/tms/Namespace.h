#pragma once

/// The glow controls stand on the framework and speak its language.
namespace vcl {}

namespace tms {
using namespace vcl;
}
