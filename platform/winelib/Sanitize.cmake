# SPDX-License-Identifier: MIT
# Our own sources under the address sanitizer and the one for undefined behaviour; run_sanitized.sh starts what is built so.
option(NX_SANITIZE "Compile with the sanitizers" OFF)
if(NX_SANITIZE)
    # Left out: faults on the stack, since Wine makes the stacks of its threads itself and the sanitizer does not know them; and the
    # types of objects, since COM's objects are Wine's, written in C, and carry none.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr --param=asan-stack=0 -fno-sanitize-recover=undefined
        -fno-omit-frame-pointer)
    # winegcc does not hand the option on to the linker.
    foreach(runtime asan ubsan)
        execute_process(COMMAND g++ -print-file-name=lib${runtime}.so OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
        link_libraries(${library})
    endforeach()
endif()
