# What is installed, and that a folder it was built in can be used like an installed one: both have the packages
# Tessary for find_package and tessary for pkg-config, without paths that would bind them to their place.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/Tessary)

install(TARGETS tessary tessary_main EXPORT TessaryTargets INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS ptn EXPORT TessaryTargets)
install(TARGETS tessary_panel)
if(TARGET tessary_plant)
  install(TARGETS tessary_plant EXPORT TessaryTargets)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/tools/ptn/completion.bash RENAME ptn
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(DIRECTORY ${PROJECT_BINARY_DIR}/include/tessary DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT TessaryTargets NAMESPACE Tessary:: DESTINATION ${PACKAGE_FOLDER})
export(EXPORT TessaryTargets NAMESPACE Tessary:: FILE ${PROJECT_BINARY_DIR}/TessaryTargets.cmake)

set(CONFIG_FILES ${PROJECT_BINARY_DIR}/TessaryConfig.cmake ${PROJECT_BINARY_DIR}/TessaryConfigVersion.cmake
                 ${PROJECT_BINARY_DIR}/TessaryProject.cmake)
foreach(file TessaryConfig.cmake TessaryProject.cmake)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${file} ${PROJECT_BINARY_DIR}/${file} COPYONLY)
endforeach()
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TessaryConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CONFIG_FILES} DESTINATION ${PACKAGE_FOLDER})

# write_pkgconfig(FILE LIBRARIES HEADERS LINK_OPTIONS): LIBRARIES and HEADERS are where those are seen from the file.
function(write_pkgconfig file libraries headers link_options)
  string(JOIN " " CFLAGS -std=c++17 ${TEXT_OPTIONS} -Wno-deprecated-declarations)
  string(JOIN " " LIBS -ltessary_main -ltessary ${link_options})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/tessary.pc.in ${file} @ONLY)
endfunction()

file(RELATIVE_PATH libraries /${CMAKE_INSTALL_LIBDIR}/pkgconfig /${CMAKE_INSTALL_LIBDIR})
file(RELATIVE_PATH headers /${CMAKE_INSTALL_LIBDIR}/pkgconfig /${CMAKE_INSTALL_INCLUDEDIR})
write_pkgconfig(${PROJECT_BINARY_DIR}/installed/tessary.pc ${libraries} ${headers} "")
install(FILES ${PROJECT_BINARY_DIR}/installed/tessary.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
write_pkgconfig(${PROJECT_BINARY_DIR}/tessary.pc . include "${INSTRUMENT_LINK_OPTIONS}")

if(TARGET tessary_plant)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/tessary-plant.pc.in ${PROJECT_BINARY_DIR}/tessary-plant.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/tessary-plant.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
