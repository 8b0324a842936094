# Cross-built Windows programs run under Wine: CTest puts this wrapper before each of them.
# The prefix lives in the build tree, one per tree.
if(CMAKE_CROSSCOMPILING AND WIN32)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(ORV3CAL_WINE_BITS 32)
  else()
    set(ORV3CAL_WINE_BITS 64)
  endif()
  set(CMAKE_CROSSCOMPILING_EMULATOR
      ${PROJECT_SOURCE_DIR}/scripts/wine-run ${ORV3CAL_WINE_BITS} ${CMAKE_BINARY_DIR}/wine)
endif()
