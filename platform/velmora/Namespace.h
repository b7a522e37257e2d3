#pragma once

/// The base controls of the house stand on the framework and speak its language.
namespace vcl {}

namespace velmora {
using namespace vcl;
}
