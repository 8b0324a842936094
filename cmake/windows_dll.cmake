# Orv3CalDll.dll: the library's sources once more, with their exports.
get_target_property(sources orv3cal SOURCES)
add_library(orv3cal_dll SHARED ${sources})
set_target_properties(orv3cal_dll PROPERTIES OUTPUT_NAME Orv3CalDll PREFIX "")
add_dependencies(orv3cal_dll orv3cal)  # whatever generates sources has run
orv3cal_warnings(orv3cal_dll)
target_compile_features(orv3cal_dll PUBLIC cxx_std_20)
target_compile_definitions(orv3cal_dll PRIVATE ORV3CAL_BUILD_DLL INTERFACE ORV3CAL_USE_DLL)
target_include_directories(orv3cal_dll PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>)

# On i686 a program catches what the DLL throws only when both use one runtime, so its files go
# beside the DLL. On x86_64 a static runtime is enough.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  foreach(name libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
                    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND ORV3CAL_RUNTIME_DLLS ${file})
  endforeach()
  file(COPY ${ORV3CAL_RUNTIME_DLLS} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
else()
  target_link_options(orv3cal_dll PRIVATE -static)
endif()
