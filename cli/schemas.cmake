# Puts the schemas of docs/schema into the command.
file(GLOB files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/schema/*.schema.json)
set(schemas "#include \"cases/schemas.h\"\n\nnamespace orv3::cli {\n\n")
string(APPEND schemas "std::string_view SchemaOf(std::string_view kind) noexcept {\n")
foreach(file IN LISTS files)
  get_filename_component(kind ${file} NAME_WE)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  file(READ ${file} text)
  string(APPEND schemas "  if (kind == \"${kind}\") return R\"schema(${text})schema\";\n")
endforeach()
string(APPEND schemas "  return {};\n}\n\n}  // namespace orv3::cli\n")
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/schemas.cpp.new "${schemas}")
file(COPY_FILE ${CMAKE_CURRENT_BINARY_DIR}/schemas.cpp.new ${CMAKE_CURRENT_BINARY_DIR}/schemas.cpp
     ONLY_IF_DIFFERENT)
