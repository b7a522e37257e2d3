#pragma once

/// The package stands on the framework and speaks its language; later folders add the base controls that they
/// derive from.
namespace vcl {}

namespace qv7skin {
using namespace vcl;
}
