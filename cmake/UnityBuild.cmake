# SPDX-License-Identifier: MIT
# Several sources are compiled as one translation unit: what they share, above all the templates of OpenSceneGraph, is then compiled
# once for all of them, which halves the time of a build from nothing. Names in unnamed namespaces have to differ among neighbours
# in a target's list. Whoever edits one source all day may want it off.
option(NX_UNITY_BUILD "Compile several sources as one translation unit" ON)
set(CMAKE_UNITY_BUILD ${NX_UNITY_BUILD})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 5)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC takes the sources for headers then, in which a class with a base of an unnamed namespace would be a mistake.
    add_compile_options(-Wno-subobject-linkage)
endif()
