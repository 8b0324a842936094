# orv3cal_resources: what every Windows module that shows dialogs links to: the pictures and the
# dialogs' own resources. An archive cannot carry resources, so each module compiles them.
#
# The pictures are drawn by a program for the machine that builds, so that a cross build needs no
# emulator.
set(pictures ${CMAKE_BINARY_DIR}/pictures)
file(GLOB parts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/module/pictures/*
     ${PROJECT_SOURCE_DIR}/src/framework/* ${PROJECT_SOURCE_DIR}/src/drawing/*
     ${PROJECT_SOURCE_DIR}/src/sections/sketch/* ${PROJECT_SOURCE_DIR}/src/sections/section_shapes.*
     ${PROJECT_SOURCE_DIR}/src/sections/section_kind.*)
add_custom_command(
  OUTPUT ${pictures}/pictures.rc
  COMMAND ${CMAKE_COMMAND} -S ${PROJECT_SOURCE_DIR}/src/module/pictures -B ${pictures}/tool
          -G ${CMAKE_GENERATOR} -DCMAKE_MAKE_PROGRAM=${CMAKE_MAKE_PROGRAM}
          -DCMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER} --log-level=WARNING
  COMMAND ${CMAKE_COMMAND} --build ${pictures}/tool -- -j2
  COMMAND ${pictures}/tool/make_pictures ${pictures}
  DEPENDS ${parts}
  COMMENT "Drawing the picture resources"
  VERBATIM)
add_custom_target(pictures DEPENDS ${pictures}/pictures.rc)

file(GLOB dialogs CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/dialogs/win32/*.rc)
add_library(orv3cal_resources INTERFACE)
target_sources(orv3cal_resources INTERFACE ${pictures}/pictures.rc ${dialogs})
add_dependencies(orv3cal_resources pictures)
