# The Windows program: the system's own libraries in the place of the platform layer, everything else inside the file.
enable_language(RC)
add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=) # with the next line, the same program from every folder
add_link_options(-static $<$<CONFIG:Release>:-s> -Wl,--no-insert-timestamp)
include(cmake/source_libraries.cmake)

# On 64-bit Windows GCC aligns the stack to 16 bytes, yet moves vectors of 32 and 64 bytes as if it were aligned to them.
add_compile_options(-Wa,-muse-unaligned-vector-move)

target_compile_definitions(tervalis_common INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN)
target_link_libraries(tervalis_common INTERFACE turbojpeg hwy)

add_library(tervalis_platform_base INTERFACE)
target_link_libraries(tervalis_platform_base INTERFACE user32 gdi32 ddraw dsound winmm advapi32 shell32)
add_library(tervalis_platform ALIAS tervalis_platform_base)

configure_file(packaging/tervalis.manifest.in packaging/tervalis.manifest @ONLY)
configure_file(packaging/tervalis.rc.in tervalis.rc @ONLY)
# WinMain is asked for by the C runtime, after all libraries: the entry point must be the program's own.
add_executable(tervalis WIN32 src/app/entry.cpp src/platform/windows/process.cpp ${CMAKE_CURRENT_BINARY_DIR}/tervalis.rc)
target_link_libraries(tervalis PRIVATE tervalis_game tervalis_platform)
target_compile_definitions(tervalis PRIVATE TERVALIS_ID=L"${TERVALIS_ID}")

include(cmake/windows_package.cmake)
