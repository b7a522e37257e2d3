#pragma once

/// The caption header.

#include "header/caption/CaptionHeader.h"
