# The browser: WebAssembly by emscripten, as Debian installs it.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
# Exceptions of the machine itself, many times as fast as those by way of the script.
set(CMAKE_CXX_FLAGS_INIT "-fwasm-exceptions")
