# What the toolchains of both widths have in common: Debian's MinGW-w64, and what scripts/windows-kit made. Programs of
# the build run by scripts/windows-run.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_CURRENT_LIST_DIR}/../scripts/windows-run ${CMAKE_SYSTEM_PROCESSOR} ${CMAKE_BINARY_DIR}/wine)

# Where the kit stands is said when a build is first laid out; what is tried out on the way is told of it, too.
set(GFC_WINDOWS_ROOTS "$ENV{GFC_WINDOWS_ROOTS}" CACHE STRING "The folders of scripts/windows-kit roots")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES GFC_WINDOWS_ROOTS)
if(NOT GFC_WINDOWS_ROOTS)
    message(FATAL_ERROR "Please run ./test windows, or give GFC_WINDOWS_ROOTS as scripts/windows-kit roots says it.")
endif()
set(CMAKE_FIND_ROOT_PATH ${GFC_WINDOWS_ROOTS} /usr/${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Qt's tools that run while building are the host's own, of the same version.
set(QT_HOST_PATH /usr)

# GCC takes a field that an initialiser by names leaves to its default for a forgotten one; clang, which builds all this
# elsewhere, tells the two apart.
string(APPEND CMAKE_CXX_FLAGS_INIT " -Wno-missing-field-initializers")

# No library of the toolchain has to stand beside the program.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_MODULE_LINKER_FLAGS_INIT -static)
