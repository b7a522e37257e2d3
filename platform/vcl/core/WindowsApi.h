#pragma once

// The Windows API without the macros that would rename members of framework classes behind the reader's back.
// Whoever wants the function of that name writes its W form. Headers include this one instead of <windows.h>,
// so that each name means the same in every source.

#include <windows.h>

#undef DeleteFile
#undef GetObject
#undef LoadMenu
#undef MessageBox
#undef RegisterClass
#undef TextOut
