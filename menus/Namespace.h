#pragma once

#include "skin/Namespace.h"
