# liborv3cal.so: the static library's objects, linked once more. It exports the public interface
# alone; the soname's number is raised with every change that a program built before would not run
# with (docs/compatibility.md).
add_library(orv3cal_shared SHARED $<TARGET_OBJECTS:orv3cal>)
add_library(orv3cal::shared ALIAS orv3cal_shared)
set(exports ${PROJECT_SOURCE_DIR}/cmake/liborv3cal.map)
set_target_properties(orv3cal_shared PROPERTIES
  OUTPUT_NAME orv3cal EXPORT_NAME shared LINKER_LANGUAGE CXX
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} LINK_DEPENDS ${exports})
target_compile_features(orv3cal_shared PUBLIC cxx_std_20)
target_include_directories(orv3cal_shared PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
                                                 $<INSTALL_INTERFACE:include/orv3cal>)
target_link_options(orv3cal_shared PRIVATE -Wl,--version-script=${exports} -Wl,--no-undefined
                    -Wl,--gc-sections -Wl,-Bsymbolic-functions)
orv3cal_small_relocations(orv3cal_shared)
get_target_property(libraries orv3cal LINK_LIBRARIES)
if(libraries)
  target_link_libraries(orv3cal_shared PRIVATE ${libraries})
endif()
