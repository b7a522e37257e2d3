# Test programs: GoogleTest, the test library, one precompiled header for all of them.

# GoogleTest from its sources where the system brings them, else as an installed package.
if(EXISTS /usr/src/googletest/CMakeLists.txt)
  set(INSTALL_GTEST OFF)
  set(BUILD_GMOCK OFF)
  block(SCOPE_FOR VARIABLES)
    set(BUILD_SHARED_LIBS OFF)
    set(gtest_force_shared_crt ON)
    add_subdirectory(/usr/src/googletest "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
  endblock()
else()
  find_package(GTest REQUIRED)
endif()

# Tests are compiled often and run briefly: no optimisation.
if(MSVC)
  set(TEST_OPTIONS "")
else()
  set(TEST_OPTIONS -O0)
endif()

house_pch(test_pch HEADERS "${PROJECT_SOURCE_DIR}/platform/vcl/Pch.h" <gtest/gtest.h> OPTIONS ${TEST_OPTIONS}
  USES GTest::gtest)

# tests/support, with the main function of every test program.
function(test_support_library)
  house_sources(sources tests/support)
  if(NOT sources)
    return()
  endif()
  if(QV7_COMPILE_ONLY)
    add_library(test_support OBJECT ${sources})
  else()
    add_library(test_support STATIC ${sources})
  endif()
  house_setup(test_support)
  house_use(test_support vcl)
  target_link_libraries(test_support PUBLIC GTest::gtest)
  target_compile_options(test_support PRIVATE ${TEST_OPTIONS})
  target_precompile_headers(test_support REUSE_FROM test_pch)
endfunction()

# One test program, linked with what the folder is about. With ctest it is one test; ./run test splits it by suite.
function(house_tests name)
  set(uses test_support vcl)
  if(NOT name STREQUAL vcl_tests)
    list(PREPEND uses QV7Skin velmora tms flatstyle)
  endif()
  if(name STREQUAL designer_tests)
    list(PREPEND uses QV7Designer)
  endif()
  house_executable(${name} PCH test_pch USES ${uses} GTest::gtest OPTIONS ${TEST_OPTIONS} ${ARGN})
  if(TARGET ${name} AND NOT QV7_COMPILE_ONLY)
    # Resources that tests read back stand beside them.
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS")
    foreach(folder IN LISTS arg_FOLDERS)
      file(GLOB_RECURSE scripts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.rc")
      target_sources(${name} PRIVATE ${scripts})
    endforeach()
    add_test(NAME ${name} COMMAND ${name})
  endif()
endfunction()
