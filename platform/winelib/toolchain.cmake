# SPDX-License-Identifier: MIT
# Winelib: the compilers that build Win32 sources into programs that run under Wine, linked with native libraries.
# Debian's scripts of these names in /usr/bin take arguments with blanks apart, so the compilers behind them are named.
if(EXISTS /usr/lib/wine/wineg++)
    set(CMAKE_C_COMPILER /usr/lib/wine/winegcc)
    set(CMAKE_CXX_COMPILER /usr/lib/wine/wineg++)
else()
    set(CMAKE_C_COMPILER winegcc)
    set(CMAKE_CXX_COMPILER wineg++)
endif()
# A linked check program would have to be started through Wine; objects are enough for CMake's own checks.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
# winegcc does not report the multiarch directory, and without it no find module sees a distribution's library.
set(CMAKE_LIBRARY_ARCHITECTURE x86_64-linux-gnu)
set(NX_WINELIB ON)
