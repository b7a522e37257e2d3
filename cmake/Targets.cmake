# Targets by folder: every source below the named folders belongs to the target, new files are found by themselves,
# and a target whose folders are empty is left out.

# Collects the sources of the named folders (relative to the project).
function(house_sources out)
  set(patterns "")
  foreach(folder IN LISTS ARGN)
    list(APPEND patterns "${PROJECT_SOURCE_DIR}/${folder}/*.cpp")
  endforeach()
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${patterns})
  set(${out} "${sources}" PARENT_SCOPE)
endfunction()

# Makes the headers of the folders part of the library: installed with it, and each checked by the clang preset to
# compile on its own.
function(house_headers name)
  set(patterns "")
  foreach(folder IN LISTS ARGN)
    list(APPEND patterns "${PROJECT_SOURCE_DIR}/${folder}/*.h")
  endforeach()
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${patterns})
  list(REMOVE_ITEM headers "${PROJECT_SOURCE_DIR}/platform/vcl/Pch.h")
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${headers})
endfunction()

# One precompiled header, compiled once for all targets that share the same flags.
function(house_pch name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;OPTIONS;USES")
  file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/pch/${name}.cpp" CONTENT "")
  add_library(${name} OBJECT "${PROJECT_BINARY_DIR}/pch/${name}.cpp")
  house_setup(${name})
  target_compile_options(${name} PRIVATE ${arg_OPTIONS})
  target_link_libraries(${name} PRIVATE ${arg_USES})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

# Flags, definitions and include folder of every target of ours.
function(house_setup name)
  set_target_properties(${name} PROPERTIES DEFINE_SYMBOL "")
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:house_flags>)
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_compile_definitions(${name} PUBLIC UNICODE _UNICODE NOMINMAX VCL_LEDGER=$<BOOL:${VCL_LEDGER}>)
  target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
endfunction()

# Links what exists of the named targets.
function(house_use name)
  foreach(used IN LISTS ARGN)
    if(TARGET ${used})
      target_link_libraries(${name} PUBLIC ${used})
    endif()
  endforeach()
endfunction()

# Compiles a resource script anew when one of the files beside it changes.
function(house_resource_pieces script)
  cmake_path(GET script PARENT_PATH folder)
  file(GLOB_RECURSE pieces CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.bmp"
    "${PROJECT_SOURCE_DIR}/${folder}/*.dfm" "${PROJECT_SOURCE_DIR}/${folder}/*.ico"
    "${PROJECT_SOURCE_DIR}/${folder}/*.rc" "${PROJECT_SOURCE_DIR}/${folder}/*.rh")
  list(REMOVE_ITEM pieces "${PROJECT_SOURCE_DIR}/${script}")
  set_property(SOURCE "${PROJECT_SOURCE_DIR}/${script}" PROPERTY OBJECT_DEPENDS "${pieces}")
endfunction()

# A resource script goes where the linker keeps it: into the DLL, or with a static library into each program.
function(house_resources name script)
  if(QV7_COMPILE_ONLY OR NOT EXISTS "${PROJECT_SOURCE_DIR}/${script}")
    return()
  endif()
  cmake_path(GET script PARENT_PATH folder)
  house_resource_pieces(${script})
  if(BUILD_SHARED_LIBS)
    target_sources(${name} PRIVATE "${PROJECT_SOURCE_DIR}/${script}")
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/${folder}")
  else()
    add_library(${name}_resources OBJECT "${PROJECT_SOURCE_DIR}/${script}")
    target_include_directories(${name}_resources PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/${folder}")
    target_sources(${name} INTERFACE $<TARGET_OBJECTS:$<TARGET_NAME:${name}_resources>>)
    set_property(GLOBAL APPEND PROPERTY HOUSE_LIBRARIES ${name}_resources)
  endif()
endfunction()

# A library: FOLDERS hold its sources, USES names other targets, SYSTEM the system's libraries.
function(house_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS;USES;SYSTEM;RESOURCES")
  house_sources(sources ${arg_FOLDERS})
  if(NOT sources)
    return()
  endif()
  if(QV7_COMPILE_ONLY)
    add_library(${name} OBJECT ${sources})
  else()
    add_library(${name} ${sources})
  endif()
  house_setup(${name})
  house_headers(${name} ${arg_FOLDERS})
  house_use(${name} ${arg_USES})
  target_link_libraries(${name} PUBLIC ${arg_SYSTEM})
  target_precompile_headers(${name} REUSE_FROM house_pch)
  set_target_properties(${name} PROPERTIES WINDOWS_EXPORT_ALL_SYMBOLS ON)
  set_property(GLOBAL APPEND PROPERTY HOUSE_LIBRARIES ${name})
  if(MINGW AND BUILD_SHARED_LIBS)
    # Without this a single dllexport would silently end the export of everything else.
    target_link_options(${name} PRIVATE -Wl,--export-all-symbols)
  endif()
  foreach(script IN LISTS arg_RESOURCES)
    house_resources(${name} ${script})
  endforeach()
endfunction()

# What programs have in common: sources, libraries, manifest.
# KIND is WIN32 for programs with windows, LINK holds linker options, PCH names the precompiled header to share,
# RESOURCES is a resource script with form files.
function(house_executable name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "KIND;PCH;RESOURCES" "FOLDERS;USES;OPTIONS;LINK")
  house_sources(sources ${arg_FOLDERS})
  if(NOT sources)
    return()
  endif()
  if(QV7_COMPILE_ONLY)
    add_library(${name} OBJECT ${sources})
  else()
    add_executable(${name} ${arg_KIND} ${sources} "${PROJECT_SOURCE_DIR}/cmake/manifest/Manifest.rc")
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/manifest")
    target_link_options(${name} PRIVATE ${arg_LINK})
    if(arg_RESOURCES)
      cmake_path(GET arg_RESOURCES PARENT_PATH folder)
      house_resource_pieces(${arg_RESOURCES})
      target_sources(${name} PRIVATE "${PROJECT_SOURCE_DIR}/${arg_RESOURCES}")
      target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/${folder}")
    endif()
  endif()
  house_setup(${name})
  house_use(${name} ${arg_USES})
  target_compile_options(${name} PRIVATE ${arg_OPTIONS})
  target_precompile_headers(${name} REUSE_FROM ${arg_PCH})
endfunction()

# A program with windows; its entry point is wWinMain.
function(house_program name)
  house_executable(${name} KIND WIN32 PCH house_pch LINK $<$<BOOL:${MINGW}>:-municode> ${ARGN})
endfunction()

# A console program; its entry point is main.
function(house_console name)
  house_executable(${name} PCH house_pch ${ARGN})
endfunction()

# A console program that serves development and needs no DLL.
function(house_tool name)
  house_executable(${name} PCH house_pch LINK $<$<BOOL:${MINGW}>:-static> ${ARGN})
endfunction()

house_pch(house_pch HEADERS "${PROJECT_SOURCE_DIR}/platform/vcl/Pch.h")
