# cmake --install build/mingw --prefix FOLDER: DLLs, import libraries, headers, programs, and the package files that
# find_package(QV7Skin) reads. The targets are QV7Skin::QV7Skin, QV7Skin::vcl and the base controls.

include(CMakePackageConfigHelpers)

get_property(libraries GLOBAL PROPERTY HOUSE_LIBRARIES)
get_property(runtime_dlls GLOBAL PROPERTY HOUSE_RUNTIME_DLLS)
set(package_folder lib/cmake/QV7Skin)

if(libraries)
  install(TARGETS ${libraries} EXPORT QV7SkinTargets
    RUNTIME DESTINATION bin
    LIBRARY DESTINATION lib
    ARCHIVE DESTINATION lib
    OBJECTS DESTINATION lib
    FILE_SET HEADERS DESTINATION include/QV7Skin)
  install(EXPORT QV7SkinTargets NAMESPACE QV7Skin:: DESTINATION ${package_folder})
endif()

foreach(program gallery designer)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION bin)
  endif()
endforeach()
install(FILES ${runtime_dlls} DESTINATION bin)

write_basic_package_version_file("${PROJECT_BINARY_DIR}/QV7SkinConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_SOURCE_DIR}/cmake/QV7SkinConfig.cmake" "${PROJECT_BINARY_DIR}/QV7SkinConfigVersion.cmake"
  DESTINATION ${package_folder})
