# tessary_project(TARGET SOURCES [OUTPUT FOLDER] [CHECK])
#
# Compiles the project whose sources are in the folder SOURCES with every build, before TARGET: the project
# directory is OUTPUT, without it "ProjPath" in the folder that the program is built in, and the profile and a
# folder "log" lie beside it. With CHECK the build fails when `ptn check` finds something. The sources of TARGET may
# include "cells.h", which has the project's cells and screens as constants.
#
# The step runs with every build, so that added and removed screens are noticed too; ptn writes only what has
# changed, and nothing is compiled again for the rest.
function(tessary_project target sources)
  cmake_parse_arguments(PARSE_ARGV 2 arg "CHECK" "OUTPUT" "")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "tessary_project: unknown argument ${arg_UNPARSED_ARGUMENTS}")
  endif()
  if(NOT arg_OUTPUT)
    set(arg_OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/ProjPath)
  endif()
  get_filename_component(sources "${sources}" ABSOLUTE)
  get_filename_component(arg_OUTPUT "${arg_OUTPUT}" ABSOLUTE BASE_DIR ${CMAKE_CURRENT_BINARY_DIR})
  get_filename_component(beside "${arg_OUTPUT}" DIRECTORY)
  set(check "")
  if(arg_CHECK)
    set(check COMMAND Tessary::ptn check ${sources})
  endif()
  set(headers ${CMAKE_CURRENT_BINARY_DIR}/${target}_cells)

  add_custom_target(${target}_project ALL
    COMMAND ${CMAKE_COMMAND} -E make_directory ${beside}/log
    ${check}
    COMMAND Tessary::ptn build --quiet --header ${headers}/cells.h ${sources} ${arg_OUTPUT}
    BYPRODUCTS ${headers}/cells.h
    COMMENT "Compiling the project for ${target}"
    VERBATIM)
  add_dependencies(${target} ${target}_project)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${headers}>)
endfunction()
