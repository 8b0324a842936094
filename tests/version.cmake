# Every place that names the version by hand names that of CMakeLists.txt, from which the rest takes it.
#   cmake -DSOURCE=... -DVERSION=... -P version.cmake
set(any "[0-9]+[.][0-9]+[.][0-9]+")
string(REPLACE . "[.]" version ${VERSION})

# names(FILE TEXT [OPTION...]): the lines of FILE that TEXT describes; "@" in it stands for the version.
function(names file text)
  string(REPLACE @ "(${any})" named "${text}")
  string(REPLACE @ "(${version})" right "${text}")
  file(STRINGS ${SOURCE}/${file} lines ENCODING UTF-8 REGEX "${named}" ${ARGN})
  if(NOT lines)
    message(SEND_ERROR "${file}: names no version")
  endif()
  list(TRANSFORM lines REPLACE "${right}" "")
  list(FILTER lines INCLUDE REGEX "${named}")
  if(lines)
    message(SEND_ERROR "${file}: not of version ${VERSION}: ${lines}")
  endif()
endfunction()

names(CHANGELOG.md "^## @" LIMIT_COUNT 1)
names(packaging/debian/changelog "^orv3cal \\(@-" LIMIT_COUNT 1)
names(packaging/conan/conanfile.py "version = \"@\"")
names(packaging/vcpkg/vcpkg.json "\"version\": \"@\"")
names(README.md "orv3cal-@-[a-z]")
names(README.zh-CN.md "orv3cal-@-[a-z]")
