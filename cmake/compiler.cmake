# Compiler settings that every part shares.

find_program(CCACHE_PROGRAM ccache)
mark_as_advanced(CCACHE_PROGRAM)
if(CCACHE_PROGRAM AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
  # em++ does not show that it is a clang. A precompiled header without times is the same each time.
  if(EMSCRIPTEN)
    list(PREPEND CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_COMPILERTYPE=clang CCACHE_SLOPPINESS=pch_defines,time_macros)
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()

# orv3cal_warnings(TARGET...): the warnings of our own code, each an error.
function(orv3cal_warnings)
  foreach(target ${ARGN})
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Werror)
    # libc++ wants braces around the elements of a std::array that no standard asks for.
    if(EMSCRIPTEN)
      target_compile_options(${target} PRIVATE -Wno-missing-braces)
    endif()
    # GCC 12 sees an overlap in "c" + std::to_string(i) that is none (GCC bug 105651).
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      target_compile_options(${target} PRIVATE -Wno-restrict)
    endif()
    # With the sanitizers' checks in between, GCC takes members of std::regex for uninitialized.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND ORV3CAL_SANITIZE)
      target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
    endif()
  endforeach()
endfunction()

# With ORV3CAL_UNITY a folder's sources are compiled together, which takes less than half the time; the
# names of their unnamed namespaces differ.
# orv3cal_unity(TARGET): compiles it by the groups of orv3cal_unity_groups where that is asked for.
function(orv3cal_unity target)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${ORV3CAL_UNITY} UNITY_BUILD_MODE GROUP)
endfunction()

# orv3cal_unity_groups(TARGET SOURCE...): sources of the folder at hand, a group for each of its folders.
function(orv3cal_unity_groups target)
  foreach(source IN LISTS ARGN)
    cmake_path(GET source PARENT_PATH folder)
    cmake_path(RELATIVE_PATH folder)
    string(MAKE_C_IDENTIFIER ${folder} group)
    set_source_files_properties(${source} TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP ${group})
  endforeach()
endfunction()

# orv3cal_small_relocations(TARGET): relative relocations a twentieth as large, where linker and C library
# know them (binutils 2.38, glibc 2.36).
include(CheckLinkerFlag)
function(orv3cal_small_relocations target)
  if(CMAKE_SYSTEM_NAME STREQUAL Linux)
    check_linker_flag(CXX -Wl,-z,pack-relative-relocs ORV3CAL_PACKS_RELOCATIONS)
    if(ORV3CAL_PACKS_RELOCATIONS)
      target_link_options(${target} PRIVATE -Wl,-z,pack-relative-relocs)
    endif()
  endif()
endfunction()

if(ORV3CAL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
  add_link_options(-fsanitize=address,undefined)
endif()
if(ORV3CAL_BUILD_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Sums and products are rounded one by one, as IEEE 754 has it: x86-64 and WebAssembly know nothing
# else, elsewhere a compiler would join them.
if(NOT CMAKE_SYSTEM_PROCESSOR MATCHES "86|AMD64")
  add_compile_options(-ffp-contract=off)
endif()

# A program says nothing of when it was linked, so that the same sources give the same bytes.
if(MINGW)
  add_link_options(-Wl,--no-insert-timestamp)
endif()

# A Windows program needs nothing beside it, unless it sets the property ORV3CAL_SHARED_RUNTIME: on
# i686 an exception crosses from a DLL into a program only when both share one runtime.
if(MINGW)
  set(program $<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>)
  set(own_runtime $<NOT:$<BOOL:$<TARGET_PROPERTY:ORV3CAL_SHARED_RUNTIME>>>)
  add_link_options($<$<AND:${program},${own_runtime}>:-static>)
endif()
