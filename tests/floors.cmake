# No floor of the sources includes a higher one (docs/architecture.md).
#   cmake -DSOURCE=... -P floors.cmake
set(above framework drawing outlines platform tables sections catalogue codes reports connections
    members dialogs module)
foreach(floor IN LISTS above)
  list(REMOVE_ITEM above ${floor})
  list(JOIN above "|" higher)
  file(GLOB_RECURSE files ${SOURCE}/src/${floor}/*.h ${SOURCE}/src/${floor}/*.cpp
       ${SOURCE}/src/${floor}/*.in)
  if(floor STREQUAL members)
    string(APPEND higher "|connections")  # which stand beside them
  endif()
  foreach(file IN LISTS files)
    file(STRINGS ${file} arrows REGEX "^#include \"(${higher}|nothing)/")
    if(arrows)
      message(SEND_ERROR "${file}: ${arrows}")
    endif()
  endforeach()
endforeach()
