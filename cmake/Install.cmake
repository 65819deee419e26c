# SPDX-License-Identifier: MIT
# cmake --install: headers, modules, import libraries, the application's data and a CMake package. The folder can be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(NX_PACKAGE ${CMAKE_INSTALL_LIBDIR}/cmake/NxOsgCeGui)
set(NX_DATA ${CMAKE_INSTALL_DATADIR}/NxOsgCeGui/app)

# Each group of headers keeps a root of its own, as they are included: <NxOsgCeGui/...>, <NxConfig/...>, <afxwin.h>.
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN *.h)
install(DIRECTORY services/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/NxOsgCeGui/services FILES_MATCHING PATTERN *.h)
target_include_directories(NxOsgCeGui INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_include_directories(NxServices INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/NxOsgCeGui/services>)

set(modules NxServices NxOsgCeGui)
if(TARGET NxMfc)
    list(APPEND modules NxMfc)
    install(DIRECTORY mfc/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/NxOsgCeGui/mfc FILES_MATCHING PATTERN *.h)
    target_include_directories(NxMfc INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/NxOsgCeGui/mfc>)
endif()
if(NX_WINELIB)
    list(APPEND modules osgViewerWin32)
    install(DIRECTORY ${CMAKE_BINARY_DIR}/osg-win32/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/NxOsgCeGui/osg-win32)
    target_include_directories(osgViewerWin32 SYSTEM INTERFACE
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/NxOsgCeGui/osg-win32>)
    foreach(module ${modules})
        get_target_property(implib ${module} NX_IMPLIB)
        get_target_property(use_source ${module} NX_USE_SOURCE)
        install(FILES ${implib} DESTINATION ${CMAKE_INSTALL_LIBDIR})
        install(FILES ${use_source} DESTINATION ${NX_PACKAGE}/platform/winelib RENAME ${module}_use.cpp)
        # The link by which Wine finds the module.
        install(FILES $<TARGET_FILE_DIR:${module}>/${module}.dll DESTINATION ${CMAKE_INSTALL_BINDIR})
    endforeach()
    # CMake knows the modules as libraries there, and puts them where Windows has its DLLs.
    set(library_folder ${CMAKE_INSTALL_BINDIR})
    install(FILES platform/winelib/Winelib.cmake platform/winelib/toolchain.cmake platform/winelib/wine_env.sh
        platform/winelib/module.cpp.in platform/winelib/module.spec.in platform/winelib/module_use.cpp.in
        DESTINATION ${NX_PACKAGE}/platform/winelib)
    install(PROGRAMS platform/winelib/run_wine.sh platform/winelib/with_display.sh DESTINATION ${NX_PACKAGE}/platform/winelib)
else()
    set(library_folder ${CMAKE_INSTALL_LIBDIR})
endif()
install(TARGETS ${modules} EXPORT NxOsgCeGuiTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${library_folder}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT NxOsgCeGuiTargets NAMESPACE NxOsgCeGui:: DESTINATION ${NX_PACKAGE})

# What a program wants to find beside itself; the drawings that the pictures are made of are left out.
install(DIRECTORY app/ DESTINATION ${NX_DATA} PATTERN art EXCLUDE PATTERN .gitkeep EXCLUDE PATTERN make* EXCLUDE)
install(FILES README.md CHANGELOG.md LICENSE THIRD_PARTY.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} PATTERN *.sh EXCLUDE)

configure_package_config_file(cmake/NxOsgCeGuiConfig.cmake.in ${CMAKE_BINARY_DIR}/package/NxOsgCeGuiConfig.cmake
    INSTALL_DESTINATION ${NX_PACKAGE} PATH_VARS CMAKE_INSTALL_BINDIR CMAKE_INSTALL_LIBDIR NX_DATA)
# Before 1.0 any minor version may break its hosts.
write_basic_package_version_file(${CMAKE_BINARY_DIR}/package/NxOsgCeGuiConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/package/NxOsgCeGuiConfig.cmake ${CMAKE_BINARY_DIR}/package/NxOsgCeGuiConfigVersion.cmake
    DESTINATION ${NX_PACKAGE})
install(FILES cmake/Dependencies.cmake cmake/NxTargets.cmake cmake/module.cpp.in DESTINATION ${NX_PACKAGE}/cmake)
