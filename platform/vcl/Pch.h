#pragma once

// What nearly every source needs: the Windows API and the standard library. Sources still include what they
// use; this only makes compiling them faster.

#include "platform/vcl/core/WindowsApi.h"

#include <commctrl.h>
#include <objbase.h>
#include <windowsx.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>
