# 32-bit Windows with mingw-w64.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(MINGW_TRIPLET i686-w64-mingw32)
# Doubles are doubles, as on every other machine: the x87 would keep more digits now and then. Stacks
# of 32-bit hosts are aligned to 4 bytes only.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw.cmake)
