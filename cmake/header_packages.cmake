# CLI11 and nlohmann-json are headers alone, so a cross build uses the host's. Only their two folders
# are made reachable, never the host's whole include folder.
if(NOT CMAKE_CROSSCOMPILING)
  find_package(CLI11 REQUIRED)
  find_package(nlohmann_json REQUIRED)
  return()
endif()

# header_package(TARGET FOLDER HEADER): TARGET gives the folder of the host's headers that holds HEADER.
function(header_package target folder header)
  find_path(${folder}_ROOT ${folder}/${header} PATHS /usr/local/include /usr/include
            NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(include ${CMAKE_BINARY_DIR}/headers/${folder})
  file(MAKE_DIRECTORY ${include})
  file(CREATE_LINK ${${folder}_ROOT}/${folder} ${include}/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} INTERFACE ${include})
endfunction()

header_package(CLI11::CLI11 CLI CLI.hpp)
header_package(nlohmann_json::nlohmann_json nlohmann json.hpp)
