#pragma once

namespace vcl {}

namespace dfm {
using namespace vcl;
}
