# Installs the build tree BUILD into a folder of its own, then builds the project CONSUMER with the
# compiler CXX against what was installed, and runs its programs.
set(prefix ${BUILD}/install-test/prefix)
set(tree ${BUILD}/install-test/consumer)
file(REMOVE_RECURSE ${BUILD}/install-test)

function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
# The target "installed" builds all of what has been installed: whoever built no more can install.
execute_process(COMMAND ninja -C ${BUILD} -t commands installed OUTPUT_VARIABLE built
                COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE products ${prefix}/*/liborv3cal* ${prefix}/bin/*)
foreach(product ${products})
  cmake_path(GET product FILENAME name)
  if(NOT IS_SYMLINK ${product} AND NOT built MATCHES "[ /]${name} ")
    message(FATAL_ERROR "the target \"installed\" does not build ${name}")
  endif()
endforeach()

file(GLOB_RECURSE pc ${prefix}/*/orv3cal.pc)
cmake_path(GET pc PARENT_PATH pc_dir)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${tree} -G Ninja -DCMAKE_CXX_COMPILER=${CXX}
    -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${tree})
run(${tree}/static_by_package)
run(${tree}/static_by_pkg_config)
set(ENV{LD_LIBRARY_PATH} ${pc_dir}/..)
run(${tree}/shared_by_package)
run(${tree}/shared_by_pkg_config)

run(${CMAKE_COMMAND} -DLIBRARY=${pc_dir}/../liborv3cal.so -P ${CONSUMER}/exports.cmake)

# A tree that was moved works where it lies: the command finds its library and its catalogue.
file(RENAME ${prefix} ${prefix}-moved)
set(ENV{LD_LIBRARY_PATH})
set(ENV{HOME} ${tree})
if(EXISTS ${prefix}-moved/bin/orv3cal)
  run(${prefix}-moved/bin/orv3cal show 热轧普通工字钢 I20a)
endif()
