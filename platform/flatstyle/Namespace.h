#pragma once

/// The flat controls stand on the framework and speak its language.
namespace vcl {}

namespace flatstyle {
using namespace vcl;
}
