# cmake --install: headers, library, find_package(orv3cal) and pkg-config.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS orv3cal EXPORT orv3calTargets)
if(TARGET orv3cal_shared)
  install(TARGETS orv3cal_shared EXPORT orv3calTargets)
endif()
install(DIRECTORY src/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orv3cal
        FILES_MATCHING PATTERN "*.h"
        PATTERN "posix" EXCLUDE PATTERN "web" EXCLUDE PATTERN "win32" EXCLUDE
        PATTERN "solver" EXCLUDE  # wants Eigen
        PATTERN "module" EXCLUDE)
# The C interface is a header without any other.
install(FILES src/module/orv3cal_c.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orv3cal)
if(TARGET orv3cal_dll)
  install(TARGETS orv3cal_dll)
  install(FILES ${ORV3CAL_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

# What an installation takes from the build tree, for builds of no more than that.
add_custom_target(installed)
foreach(target orv3cal orv3cal_shared orv3cal_cli manual orv3cal_python orv3cal_dll orv3browser catalogue)
  if(TARGET ${target})
    add_dependencies(installed ${target})
  endif()
endforeach()

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/orv3cal)
install(EXPORT orv3calTargets NAMESPACE orv3cal:: FILE orv3calConfig.cmake
        DESTINATION ${package_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/orv3calConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/orv3calConfigVersion.cmake DESTINATION ${package_dir})

# The prefix is found from the file's own place, so an installed tree may be moved.
file(RELATIVE_PATH pkgconfig_to_prefix /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
configure_file(cmake/orv3cal.pc.in orv3cal.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/orv3cal.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
