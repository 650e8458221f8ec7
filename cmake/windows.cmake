# The Windows program: the system's own libraries in the place of the platform layer, everything else inside the file.
enable_language(RC)
add_link_options(-static)
include(cmake/windows_libraries.cmake)

target_compile_definitions(tervalis_game PUBLIC NOMINMAX WIN32_LEAN_AND_MEAN)
target_link_libraries(tervalis_game PUBLIC turbojpeg)

add_library(tervalis_platform INTERFACE)
target_link_libraries(tervalis_platform INTERFACE user32 gdi32 ddraw dsound winmm advapi32 shell32)

configure_file(packaging/tervalis.rc.in tervalis.rc @ONLY)
# WinMain is asked for by the C runtime, after all libraries: the entry point must be the program's own.
add_executable(tervalis WIN32 src/app/entry.cpp ${CMAKE_CURRENT_BINARY_DIR}/tervalis.rc)
target_link_libraries(tervalis PRIVATE tervalis_game tervalis_platform)

include(cmake/windows_package.cmake)
