# The platform layer: on Windows the system's own libraries, elsewhere ours on SDL2, FreeType and fontconfig.
# tervalis_platform_base needs neither window nor sound device.
if(WIN32)
    include(cmake/windows.cmake)
    return()
endif()
if(EMSCRIPTEN)
    include(cmake/web.cmake)
    return()
endif()

find_package(PkgConfig REQUIRED)
pkg_check_modules(SDL2 REQUIRED IMPORTED_TARGET sdl2)
pkg_check_modules(FREETYPE REQUIRED IMPORTED_TARGET freetype2)
pkg_check_modules(FONTCONFIG REQUIRED IMPORTED_TARGET fontconfig)
pkg_check_modules(TURBOJPEG REQUIRED IMPORTED_TARGET libturbojpeg)
find_path(TOMLPLUSPLUS_INCLUDE_DIR toml++/toml.h REQUIRED) # its headers only: see src/platform/posix/toml.h

pkg_check_modules(HWY REQUIRED IMPORTED_TARGET libhwy)
target_link_libraries(tervalis_common INTERFACE PkgConfig::TURBOJPEG PkgConfig::HWY)

include(cmake/layout.cmake)
file(GLOB BASE_SOURCES CONFIGURE_DEPENDS src/platform/posix/*.cpp)
add_library(tervalis_platform_base STATIC ${BASE_SOURCES})
target_include_directories(tervalis_platform_base PUBLIC src PRIVATE ${TOMLPLUSPLUS_INCLUDE_DIR})
target_link_libraries(tervalis_platform_base PRIVATE PkgConfig::FREETYPE PkgConfig::FONTCONFIG)
target_compile_definitions(tervalis_platform_base PRIVATE _FILE_OFFSET_BITS=64) # files beyond 2 GB on 32-bit systems

file(GLOB SDL_SOURCES CONFIGURE_DEPENDS src/platform/sdl/*.cpp)
list(FILTER SDL_SOURCES EXCLUDE REGEX "/main\\.cpp$")
add_library(tervalis_platform STATIC ${SDL_SOURCES})
target_link_libraries(tervalis_platform PUBLIC tervalis_platform_base PkgConfig::SDL2 PRIVATE tervalis_common)

# The icon, which Windows programs carry as a resource, as an array's elements.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS packaging/tervalis.ico)
file(READ packaging/tervalis.ico ICON HEX)
string(REGEX REPLACE "(..)" "0x\\1," ICON "${ICON}")
file(CONFIGURE OUTPUT icon/icon_bytes.inc CONTENT "${ICON}")
target_include_directories(tervalis_platform PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/icon)

target_compile_definitions(tervalis_platform PRIVATE TERVALIS_ID="${TERVALIS_ID}")

add_executable(tervalis src/platform/sdl/main.cpp)
target_link_libraries(tervalis PRIVATE tervalis_game tervalis_platform)
