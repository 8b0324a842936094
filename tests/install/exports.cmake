# The shared library LIBRARY exports the C interface, and nothing of the libraries that it was built with.
#   cmake -DLIBRARY=... -P exports.cmake
execute_process(COMMAND nm -D --defined-only ${LIBRARY} OUTPUT_VARIABLE symbols
                COMMAND_ERROR_IS_FATAL ANY)
set(foreign "S[tabsiod]|5Eigen|9__gnu_cxx|8nlohmann|3CLI|3fmt|10fast_float")
string(REGEX MATCHALL "_Z(Z?NK?|T[ISV]N?K?|GVN)(${foreign})[^\n]*|_ZSt[^\n]*" names "${symbols}")
if(names OR NOT symbols MATCHES "orv3_section")
  message(FATAL_ERROR "${LIBRARY} exports ${names}")
endif()
