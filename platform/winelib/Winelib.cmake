# SPDX-License-Identifier: MIT
# How modules and programs are made with Winelib. A module is an ELF library X.dll.so that Wine loads as X.dll: it needs an
# import library with at least one plain C name in it (else the dynamic linker loads it behind Wine's back and its DllMain
# never runs), and a link X.dll beside it under which Wine finds it.

set(NX_WINELIB_DIR ${CMAKE_CURRENT_LIST_DIR})

# nx_add_dll(NAME SOURCES...): a module with the plain C export NAMEVersion().
function(nx_add_dll name)
    set(NX_MODULE ${name})
    set(generated ${CMAKE_CURRENT_BINARY_DIR}/${name}_module)
    configure_file(${NX_WINELIB_DIR}/module.spec.in ${generated}/${name}.spec @ONLY)
    configure_file(${NX_WINELIB_DIR}/module.cpp.in ${generated}/module.cpp @ONLY)
    configure_file(${NX_WINELIB_DIR}/module_use.cpp.in ${generated}/module_use.cpp @ONLY)
    set(implib ${generated}/lib${name}.a)
    add_custom_command(OUTPUT ${implib}
        COMMAND winebuild --implib -o ${implib} --export ${generated}/${name}.spec
        DEPENDS ${generated}/${name}.spec VERBATIM)
    add_custom_target(${name}_implib DEPENDS ${implib})

    add_library(${name} SHARED ${ARGN} ${generated}/module.cpp)
    add_dependencies(${name} ${name}_implib)
    target_link_libraries(${name} PRIVATE ${generated}/${name}.spec)
    set_target_properties(${name} PROPERTIES PREFIX "" SUFFIX ".dll.so" BUILD_RPATH "$ORIGIN"
        INSTALL_RPATH "$ORIGIN" LINK_DEPENDS ${generated}/${name}.spec
        NX_IMPLIB ${implib} NX_USE_SOURCE ${generated}/module_use.cpp)
    add_custom_command(TARGET ${name} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E create_symlink ${name}.dll.so $<TARGET_FILE_DIR:${name}>/${name}.dll VERBATIM)
endfunction()

# nx_use_dll(TARGET DLL...): links a module or program to modules, the way Wine wants it.
function(nx_use_dll target)
    foreach(dll ${ARGN})
        get_target_property(implib ${dll} NX_IMPLIB)
        get_target_property(use_source ${dll} NX_USE_SOURCE)
        set_source_files_properties(${use_source} PROPERTIES GENERATED TRUE SKIP_PRECOMPILE_HEADERS TRUE)
        target_sources(${target} PRIVATE ${use_source})
        target_link_libraries(${target} PRIVATE ${dll} ${implib})
    endforeach()
endfunction()

# nx_add_resources(TARGET FILE.rc): Wine's own resource compiler, whose output the linker wrapper takes.
function(nx_add_resources target file)
    get_filename_component(source ${file} ABSOLUTE)
    get_filename_component(name ${file} NAME_WE)
    set(compiled ${CMAKE_CURRENT_BINARY_DIR}/${name}.res)
    file(GLOB parts CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/resources/*)
    add_custom_command(OUTPUT ${compiled}
        COMMAND wrc -I/usr/include/wine/wine/windows -o ${compiled} ${source}
        DEPENDS ${source} ${parts} VERBATIM)
    add_custom_target(${target}_resources DEPENDS ${compiled})
    add_dependencies(${target} ${target}_resources)
    target_link_libraries(${target} PRIVATE ${compiled})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${compiled})
endfunction()

# nx_add_program(NAME SOURCES...): a program NAME.exe.so, started through run_wine.sh.
function(nx_add_program name)
    add_executable(${name} ${ARGN})
    # A program is a shared object too, which CMake's -fPIE is not enough for.
    target_compile_options(${name} PRIVATE -fPIC)
    set_target_properties(${name} PROPERTIES SUFFIX ".exe" BUILD_RPATH "$ORIGIN" ENABLE_EXPORTS OFF)
endfunction()
