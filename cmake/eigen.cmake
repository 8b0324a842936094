# Eigen, headers alone, used inside the library and never by its own headers. A cross build uses the
# host's folder, which holds nothing else.
find_path(EIGEN_INCLUDE Eigen/Sparse PATHS /usr/local/include/eigen3 /usr/include/eigen3
          PATH_SUFFIXES eigen3 NO_CMAKE_FIND_ROOT_PATH REQUIRED)
mark_as_advanced(EIGEN_INCLUDE)

function(orv3cal_eigen target)
  target_include_directories(${target} SYSTEM PRIVATE ${EIGEN_INCLUDE})
  # The heap of 32-bit Windows aligns to 8 bytes, whatever the compiler says of operator new.
  if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_compile_definitions(${target} PRIVATE EIGEN_MAX_ALIGN_BYTES=0)
  endif()
endfunction()
