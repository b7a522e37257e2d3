# The same target with clang, on the headers of mingw-w64's GCC. Compiles only (see QV7_COMPILE_ONLY): the second
# compiler is there for its warnings.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triple x86_64-w64-mingw32)
find_program(CLANG_CC NAMES clang-14 clang REQUIRED)
find_program(CLANG_CXX NAMES clang++-14 clang++ REQUIRED)
set(CMAKE_C_COMPILER "${CLANG_CC}")
set(CMAKE_CXX_COMPILER "${CLANG_CXX}")
set(CMAKE_C_COMPILER_TARGET ${triple})
set(CMAKE_CXX_COMPILER_TARGET ${triple})
set(CMAKE_RC_COMPILER ${triple}-windres)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# The thread model decides which standard library has std::mutex.
file(GLOB std_headers /usr/lib/gcc/${triple}/*-posix/include/c++)
list(GET std_headers -1 std_headers)
set(CMAKE_CXX_FLAGS_INIT
  "-nostdinc++ -isystem ${std_headers} -isystem ${std_headers}/${triple} -isystem ${std_headers}/backward")

set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
