# SPDX-License-Identifier: MIT
# OpenSceneGraph, CEGUI 0.8 and OpenGL as the one target nx_scene; GDI+, USER, GDI and the registry as nx_win32;
# the decoders of PNG and TIFF files as nx_png and nx_tiff.
include_guard(GLOBAL)
find_package(OpenSceneGraph 3.6 REQUIRED COMPONENTS osgDB osgGA osgUtil osgViewer)

# CEGUI 0.8 ships no CMake package.
find_path(CEGUI_INCLUDE_DIR CEGUI/CEGUI.h PATH_SUFFIXES cegui-0.8.7 cegui-0
    HINTS /usr/include/${CMAKE_LIBRARY_ARCHITECTURE})
find_library(CEGUI_BASE_LIBRARY CEGUIBase-0)
find_library(CEGUI_OPENGL_LIBRARY CEGUIOpenGLRenderer-0)
foreach(found CEGUI_INCLUDE_DIR CEGUI_BASE_LIBRARY CEGUI_OPENGL_LIBRARY)
    if(NOT ${found})
        message(FATAL_ERROR "CEGUI 0.8.7 with its OpenGL renderer was not found (${found}).")
    endif()
endforeach()
if(NX_WINELIB)
    # opengl32's import library would take the gl* calls away from the native libGL.
    find_library(NX_GL_LIBRARY GL REQUIRED)
else()
    find_package(OpenGL REQUIRED)
    set(NX_GL_LIBRARY OpenGL::GL)
endif()

# Some distributions ship no CMake package of it.
find_path(SPNG_INCLUDE_DIR spng.h REQUIRED)
find_library(SPNG_LIBRARY NAMES spng spng_static REQUIRED)
add_library(nx_png INTERFACE)
target_include_directories(nx_png SYSTEM INTERFACE ${SPNG_INCLUDE_DIR})
target_link_libraries(nx_png INTERFACE ${SPNG_LIBRARY})
# Its functions are found without the attribute that says where, in a static library as well.
target_compile_definitions(nx_png INTERFACE SPNG_STATIC)

# 4.5 is the first that limits what a decoder may allocate.
find_package(TIFF 4.5 REQUIRED)
add_library(nx_tiff INTERFACE)
target_link_libraries(nx_tiff INTERFACE TIFF::TIFF)

add_library(nx_win32 INTERFACE)
target_link_libraries(nx_win32 INTERFACE gdiplus gdi32 user32 comdlg32 comctl32 advapi32 ole32 oleaut32 shell32 uuid kernel32)

add_library(nx_scene INTERFACE)
target_include_directories(nx_scene SYSTEM INTERFACE ${CEGUI_INCLUDE_DIR} ${OPENSCENEGRAPH_INCLUDE_DIRS})
target_link_libraries(nx_scene INTERFACE ${OPENSCENEGRAPH_LIBRARIES} ${CEGUI_BASE_LIBRARY} ${CEGUI_OPENGL_LIBRARY}
    ${NX_GL_LIBRARY})
if(NX_WINELIB)
    # Inline functions of OpenSceneGraph call OpenGL through pointers. Their type takes Windows' way of passing arguments from this
    # name, while the functions behind them are the native libGL's.
    target_compile_definitions(nx_scene INTERFACE GL_APIENTRY=)
endif()
if(NOT MSVC)
    # CEGUI's headers say dllimport, which means nothing here.
    target_compile_options(nx_scene INTERFACE -Wno-attributes)
endif()
