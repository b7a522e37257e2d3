# What holds for every target of the project: language level, output folders, warnings, definitions.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Windows looks for DLLs beside the program, so everything that runs stands in one folder.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
if(MINGW)
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()

# Compiler flags that only our own targets carry.
add_library(house_flags INTERFACE)
target_compile_definitions(house_flags INTERFACE WIN32_LEAN_AND_MEAN STRICT WINVER=0x0A00 _WIN32_WINNT=0x0A00)
if(MSVC)
  target_compile_options(house_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:/W4 /utf-8 /permissive->
    $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<BOOL:${QV7_WERROR}>>:/WX>)
else()
  target_compile_options(house_flags INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Wpedantic>
    $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<BOOL:${QV7_WERROR}>>:-Werror>)
endif()

# Line numbers are enough to read a crash; full debug information makes each link several times slower.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g1")
endif()

# String tables and form files are UTF-8.
if(CMAKE_RC_COMPILER MATCHES "windres")
  set(CMAKE_RC_FLAGS "${CMAKE_RC_FLAGS} --codepage=65001")
endif()

# The compiler's own DLLs go beside the programs, so that a double click starts them.
function(copy_compiler_runtime)
  if(NOT MINGW OR NOT BUILD_SHARED_LIBS OR QV7_COMPILE_ONLY)
    return()
  endif()
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll} OUTPUT_VARIABLE path
      OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT EXISTS "${path}")
      find_file(path_${dll} ${dll} PATHS ${CMAKE_FIND_ROOT_PATH} PATH_SUFFIXES lib bin NO_CMAKE_FIND_ROOT_PATH)
      set(path "${path_${dll}}")
    endif()
    file(COPY "${path}" DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
    set_property(GLOBAL APPEND PROPERTY HOUSE_RUNTIME_DLLS "${path}")
  endforeach()
endfunction()
copy_compiler_runtime()
