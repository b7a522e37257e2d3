include("${CMAKE_CURRENT_LIST_DIR}/QV7SkinTargets.cmake")
