# find_package(Tessary): Tessary::main, Tessary::tessary, the program Tessary::ptn and the function tessary_project;
# see docs/installing.md.
include(CMakeFindDependencyMacro)
find_dependency(PkgConfig)
pkg_check_modules(TESSARY_TOOLKIT QUIET IMPORTED_TARGET gtk+-2.0 gthread-2.0 x11)
if(NOT TESSARY_TOOLKIT_FOUND)
  set(Tessary_FOUND FALSE)
  set(Tessary_NOT_FOUND_MESSAGE "pkg-config does not find gtk+-2.0, gthread-2.0 and x11")
  return()
endif()
include(${CMAKE_CURRENT_LIST_DIR}/TessaryTargets.cmake)
include(${CMAKE_CURRENT_LIST_DIR}/TessaryProject.cmake)
