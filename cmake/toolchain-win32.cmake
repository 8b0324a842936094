# 32-bit Windows with mingw-w64.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(MINGW_TRIPLET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw.cmake)
