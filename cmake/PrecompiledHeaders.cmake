# SPDX-License-Identifier: MIT
# Reading the headers of OpenSceneGraph, CEGUI and Win32 takes longer than compiling a source of this project. Only headers
# from outside it, and MFC's, are precompiled, so that a change of our own rebuilds what includes it and no more.
option(NX_PRECOMPILED_HEADERS "Precompile the headers of the libraries" ON)

set(NX_PRECOMPILED_STANDARD <algorithm> <cmath> <cstdint> <functional> <map> <memory> <string> <vector>)
set(NX_PRECOMPILED_SCENE <osg/Camera> <osg/Geode> <osg/Geometry> <osg/Group> <osg/Image> <osgViewer/Viewer>)
set(NX_PRECOMPILED_GUI <CEGUI/Exceptions.h> <CEGUI/GUIContext.h> <CEGUI/ImageManager.h> <CEGUI/InputEvent.h>
    <CEGUI/System.h> <CEGUI/Window.h> <CEGUI/WindowManager.h>)

# nx_precompile(TARGET HEADER...)
function(nx_precompile target)
    if(NX_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# nx_reuse_precompiled(TARGET FROM): TARGET is compiled with the same options as FROM.
function(nx_reuse_precompiled target from)
    if(NX_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} REUSE_FROM ${from})
    endif()
endfunction()
