# Which of src/framework/number_chars_*.cpp: the standard library's conversions of floating-point
# numbers, or where it has none those of fmt and fast_float, headers alone.
include(CheckCXXSourceCompiles)
check_cxx_source_compiles("
  #include <charconv>
  int main() {
    char text[40] = {};
    double value = 0;
    std::from_chars(text, text + 1, value);
    return std::to_chars(text, text + sizeof text, value).ptr == text;
  }" ORV3CAL_STD_NUMBER_CHARS)

# orv3cal_fmt_number_chars(TARGET): TARGET is compiled with the two headers. A cross build uses the
# host's, through a folder that holds nothing else.
function(orv3cal_fmt_number_chars target)
  set(headers ${CMAKE_BINARY_DIR}/headers/number_chars)
  file(MAKE_DIRECTORY ${headers})
  foreach(header fmt/format.h fast_float/fast_float.h)
    get_filename_component(folder ${header} DIRECTORY)
    find_path(${folder}_ROOT ${header} PATHS /usr/local/include /usr/include
              NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    mark_as_advanced(${folder}_ROOT)
    file(CREATE_LINK ${${folder}_ROOT}/${folder} ${headers}/${folder} SYMBOLIC)
  endforeach()
  target_compile_definitions(${target} PRIVATE FMT_HEADER_ONLY)
  target_include_directories(${target} SYSTEM PRIVATE ${headers})
endfunction()
