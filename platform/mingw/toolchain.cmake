# SPDX-License-Identifier: MIT
# MinGW-w64 on Linux: true Windows programs, without Wine's headers.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_RC_FLAGS_INIT "--codepage=65001")
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
# What CMAKE_PREFIX_PATH names is looked through, the Linux system's own folders are not.
set(CMAKE_FIND_USE_CMAKE_SYSTEM_PATH OFF)
