# Debian's emscripten. The processor's vectors are part of the build: browsers have had them since 2021.
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
set(CMAKE_C_FLAGS_INIT "-msimd128")
set(CMAKE_CXX_FLAGS_INIT "-msimd128 -fexceptions") # the reader of settings throws
