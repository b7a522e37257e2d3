#pragma once

/// The toolbar.

#include "header/toolbar/Toolbar.h"
