# Builds for 32-bit Windows on Debian, by its package g++-mingw-w64-i686-posix: the form that is shipped, since it
# stands beside a 32-bit library.
set(CMAKE_SYSTEM_PROCESSOR i686)
# Windows enters a 32-bit program with a stack on a multiple of four; and the x87's registers would keep more digits
# than a double has.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
set(CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT}")
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
