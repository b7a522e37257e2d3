#pragma once

/// The header control: a strip of items that scrolls.

#include "header/control/HeaderControl.h"
