# SPDX-License-Identifier: MIT
# nx_add_dll, nx_use_dll, nx_add_resources and nx_add_program: how this project's modules and programs are made. Winelib needs more than
# CMake's own commands do; everywhere else they are just these.
if(NX_WINELIB)
    include(${CMAKE_CURRENT_LIST_DIR}/../platform/winelib/Winelib.cmake)
else()
    set(NX_MODULE_SOURCE ${CMAKE_CURRENT_LIST_DIR}/module.cpp.in)
    # A module with the plain C export NAMEVersion().
    function(nx_add_dll name)
        set(NX_MODULE ${name})
        configure_file(${NX_MODULE_SOURCE} ${CMAKE_CURRENT_BINARY_DIR}/${name}_module.cpp @ONLY)
        add_library(${name} SHARED ${ARGN} ${CMAKE_CURRENT_BINARY_DIR}/${name}_module.cpp)
        # The DLL's name is known to hosts, with every compiler.
        set_target_properties(${name} PROPERTIES PREFIX "")
    endfunction()
    function(nx_use_dll target)
        target_link_libraries(${target} PRIVATE ${ARGN})
    endfunction()
    function(nx_add_resources target file)
        target_sources(${target} PRIVATE ${file})
    endfunction()
    function(nx_add_program name)
        add_executable(${name} WIN32 ${ARGN})
    endfunction()
endif()

# What every source of this project is compiled with.
add_library(nx_common INTERFACE)
target_compile_definitions(nx_common INTERFACE UNICODE _UNICODE NOMINMAX)
if(MSVC)
    # Never run: nobody has compiled this with Visual C++ yet. Headers of libraries are left out of it.
    target_compile_options(nx_common INTERFACE /W4 /WX /external:W0 /utf-8)
else()
    target_compile_options(nx_common INTERFACE -Wall -Wextra -Werror)
    # Line numbers are enough to read a stack by, and descriptions of every type double the time to compile and link.
    target_compile_options(nx_common INTERFACE $<$<CONFIG:RelWithDebInfo>:-g1>)
endif()
