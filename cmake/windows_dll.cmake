# Orv3CalDll.dll: the library's sources once more, with their exports, and the module's own.
set(ORV3CAL_HOST_API_VERSION 1 CACHE STRING "What acrxGetApiVersion answers")

get_target_property(sources orv3cal SOURCES)
set(module ${PROJECT_SOURCE_DIR}/src/module)
configure_file(${module}/version.rc.in ${CMAKE_BINARY_DIR}/version.rc @ONLY)
add_library(orv3cal_dll SHARED ${sources} ${module}/dll_main.cpp ${CMAKE_BINARY_DIR}/version.rc)
set_target_properties(orv3cal_dll PROPERTIES OUTPUT_NAME Orv3CalDll PREFIX "")
set_property(SOURCE ${CMAKE_BINARY_DIR}/version.rc
             PROPERTY OBJECT_DEPENDS ${module}/common_controls.manifest)
add_dependencies(orv3cal_dll orv3cal)  # whatever generates sources has run
orv3cal_warnings(orv3cal_dll)
orv3cal_unity(orv3cal_dll)
target_compile_features(orv3cal_dll PUBLIC cxx_std_20)
target_compile_definitions(orv3cal_dll
                           PRIVATE ORV3CAL_BUILD_DLL
                                   ORV3CAL_HOST_API_VERSION=${ORV3CAL_HOST_API_VERSION}
                           INTERFACE ORV3CAL_USE_DLL)
target_include_directories(orv3cal_dll PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>)
orv3cal_eigen(orv3cal_dll)
get_target_property(libraries orv3cal LINK_LIBRARIES)
if(libraries)
  target_link_libraries(orv3cal_dll PRIVATE ${libraries})
endif()
target_link_libraries(orv3cal_dll PRIVATE orv3cal_resources)
# The C interface is exported under its plain names too, which spreadsheets and scripts ask for; the
# import library keeps the decorated ones for C and C++ programs.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_link_options(orv3cal_dll PRIVATE -Wl,--add-stdcall-alias)
endif()

# A program catches what the DLL throws only when both use one runtime (i686), and a runtime of the
# DLL's own would leave memory behind when a host unloads it; so its files go beside the DLL, without
# the debugging symbols that are most of them.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(unwinding libgcc_s_dw2-1.dll)
else()
  set(unwinding libgcc_s_seh-1.dll)
endif()
file(MAKE_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
foreach(name ${unwinding} libstdc++-6.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
                  OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
  set(stripped ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name})
  execute_process(COMMAND ${CMAKE_STRIP} -p -o ${stripped} ${file} COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND ORV3CAL_RUNTIME_DLLS ${stripped})
endforeach()
