# What `cmake --install` gives to programmers: libraries, headers but for those "inside", and how CMake and pkg-config find them.
include(CMakePackageConfigHelpers)

set(config_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Views)

function(install_libraries set) # install_libraries(EXPORT-SET NAME...)
    install(TARGETS ${ARGN} EXPORT ${set} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(EXPORT ${set} NAMESPACE Views:: DESTINATION ${config_folder})
    foreach(name ${ARGN})
        install(DIRECTORY ${PROJECT_SOURCE_DIR}/${name} DESTINATION ${VIEWS_HEADERS}
                FILES_MATCHING PATTERN *.h PATTERN inside EXCLUDE)
    endforeach()
endfunction()

function(install_pkg_config name description libraries requires)
    file(RELATIVE_PATH to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    configure_file(cmake/views.pc.in ${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

install_libraries(ViewsTargets Toolkit Kernel AtomLib Views HostKit)
install_pkg_config(views "Object browsers for desktop object editors"
                   "-lViews -lViewsAtomLib -lViewsKernel -lViewsToolkit" "")
install_pkg_config(views-hostkit "What every program that hosts Views needs" "-lViewsHostKit" "views = ${PROJECT_VERSION}")
if(VIEWS_HAVE_QT)
    install_libraries(ViewsQtDesktopTargets QtDesktop)
    install_pkg_config(views-qtdesktop "Shows the windows of Views on X11 and Wayland" "-lViewsQtDesktop"
                       "views = ${PROJECT_VERSION}, Qt6Widgets")
endif()

configure_package_config_file(cmake/ViewsConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/ViewsConfig.cmake
                              INSTALL_DESTINATION ${config_folder})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ViewsConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ViewsConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/ViewsConfigVersion.cmake
        DESTINATION ${config_folder})
