# Puts the schemas of docs/schema into the command.
set(schemas "#include \"schemas.h\"\n\nnamespace orv3::cli {\n\n")
foreach(kind Bolt Fillet Butt WeldGroup Lattice Member)
  # WeldGroup: weld-group
  string(REGEX REPLACE "([a-z])([A-Z])" "\\1-\\2" name ${kind})
  string(TOLOWER ${name} name)
  set(file ${PROJECT_SOURCE_DIR}/docs/schema/${name}.schema.json)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  file(READ ${file} text)
  string(APPEND schemas "const std::string_view k${kind}Schema = R\"schema(${text})schema\";\n\n")
endforeach()
string(APPEND schemas "}  // namespace orv3::cli\n")
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/schemas.cpp.new "${schemas}")
file(COPY_FILE ${CMAKE_CURRENT_BINARY_DIR}/schemas.cpp.new ${CMAKE_CURRENT_BINARY_DIR}/schemas.cpp
     ONLY_IF_DIFFERENT)
