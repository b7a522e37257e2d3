#pragma once

/// The two tab controls.

#include "header/tabs/SimpleTabControl.h"
#include "header/tabs/TabControl.h"
