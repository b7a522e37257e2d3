#pragma once

/// Lists of objects, records and listeners, on which the controls of the package build theirs.

#include "skin/lists/BaseList.h"
#include "skin/lists/ChangeLog.h"
#include "skin/lists/NotifyEventList.h"
#include "skin/lists/RecordStatus.h"
#include "skin/lists/ThreadedList.h"
