# Eigen, headers alone, used inside the library and never by its own headers. A cross build uses the
# host's folder, which holds nothing else.
find_path(EIGEN_INCLUDE Eigen/Sparse PATHS /usr/local/include/eigen3 /usr/include/eigen3
          NO_CMAKE_FIND_ROOT_PATH REQUIRED)
mark_as_advanced(EIGEN_INCLUDE)
