# The program for the browser: the platform layer on SDL2 and FreeType, with what the page does for it in the place of
# what needs a desktop.
enable_language(C)
# There are no kernels for the browser, and what it asks about sizes it cannot find out of programs for it.
set(JPEG_OPTIONS -DWITH_SIMD=OFF -DHAVE_SIZE_T=TRUE -DSIZE_T=4)
include(cmake/source_libraries.cmake)

# SDL2 file by file: its own build would first try out some hundred calls. It draws nothing here.
set(SDL_DIR ${TERVALIS_SOURCES}/libsdl2)
set(SDL_INCLUDE ${CMAKE_CURRENT_BINARY_DIR}/libsdl2/include)
file(COPY ${SDL_DIR}/include/ DESTINATION ${SDL_INCLUDE} PATTERN SDL_config_emscripten.h EXCLUDE)
file(READ ${SDL_DIR}/include/SDL_config_emscripten.h CONFIG)
string(REGEX REPLACE "#define SDL_VIDEO_(OPENGL|RENDER)[^\n]*" "" CONFIG "${CONFIG}")
string(APPEND CONFIG "\n#define SDL_RENDER_DISABLED 1\n#define SDL_VIDEO_DRIVER_DUMMY 1\n") # the latter for tests
file(CONFIGURE OUTPUT ${SDL_INCLUDE}/SDL_config_emscripten.h CONTENT "${CONFIG}" @ONLY)
set(SDL_FOLDERS . atomic audio audio/disk audio/dummy audio/emscripten cpuinfo events file filesystem/emscripten haptic haptic/dummy
    joystick joystick/emscripten joystick/virtual libm loadso/dlopen locale locale/emscripten misc misc/emscripten power
    power/emscripten render sensor sensor/dummy stdlib thread thread/generic timer timer/unix video video/dummy
    video/emscripten video/yuv2rgb)
list(TRANSFORM SDL_FOLDERS REPLACE "(.+)" "${SDL_DIR}/src/\\1/*.c")
file(GLOB SDL_SOURCES ${SDL_FOLDERS})
add_library(sdl2 STATIC ${SDL_SOURCES})
target_include_directories(sdl2 SYSTEM PUBLIC ${SDL_INCLUDE})
target_compile_options(sdl2 PRIVATE -w)
add_source_library(freetype freetype libfreetype.a freetype -DFT_DISABLE_ZLIB=ON -DFT_DISABLE_BZIP2=ON
    -DFT_DISABLE_PNG=ON -DFT_DISABLE_HARFBUZZ=ON -DFT_DISABLE_BROTLI=ON)
target_include_directories(freetype INTERFACE ${TERVALIS_SOURCES}/freetype/include)
find_path(TOMLPLUSPLUS_INCLUDE_DIR toml++/toml.h PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
# Apart from the host's other headers, which are not for this system.
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/include)
file(CREATE_LINK ${TOMLPLUSPLUS_INCLUDE_DIR}/toml++ ${CMAKE_CURRENT_BINARY_DIR}/include/toml++ SYMBOLIC)

target_link_libraries(tervalis_common INTERFACE turbojpeg hwy)
target_compile_options(tervalis_gfx PRIVATE -mbulk-memory) # rows are copied by an instruction, not by the page's script
target_compile_options(tervalis_common INTERFACE -include ${CMAKE_CURRENT_SOURCE_DIR}/src/platform/web/vector_shift.h)

# What the browser shares with the desktop; web/ has the rest.
set(POSIX_FILES clock files font_face glyphs kernel_object mixer paths process read_file registry riff toml)
set(SDL_FILES direct_draw direct_sound events frame_fit frame_view gdi_display kept_frame keyboard message_loop messages
    mouse pad_pointer pads present sound_output stick told_frame virtual_keys
    window_handle)
list(TRANSFORM POSIX_FILES REPLACE "(.+)" "src/platform/posix/\\1.cpp")
list(TRANSFORM SDL_FILES REPLACE "(.+)" "src/platform/sdl/\\1.cpp")
file(GLOB WEB_FILES CONFIGURE_DEPENDS src/platform/web/*.cpp)
list(FILTER WEB_FILES EXCLUDE REGEX "/page_events\\.cpp$")
add_library(tervalis_platform STATIC ${WEB_FILES} ${POSIX_FILES} ${SDL_FILES})
target_include_directories(tervalis_platform PUBLIC src PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/include)
target_link_libraries(tervalis_platform PUBLIC sdl2 PRIVATE freetype tervalis_common)
add_library(tervalis_platform_base ALIAS tervalis_platform)
target_link_options(tervalis_platform PUBLIC
    --js-library ${CMAKE_CURRENT_SOURCE_DIR}/src/platform/web/page.js
    -sALLOW_MEMORY_GROWTH=1 -sFORCE_FILESYSTEM=1 -sEXIT_RUNTIME=1 -sMODULARIZE=1 -sENVIRONMENT=web
    -sEXPORTED_RUNTIME_METHODS=FS)

# What the page calls is asked for by nothing else: it must be the program's own.
add_executable(tervalis src/platform/sdl/main.cpp src/platform/web/page_events.cpp)
target_link_libraries(tervalis PRIVATE tervalis_game tervalis_platform)
# Idle lets the browser go on: what may stand on the stack meanwhile, the game's loop being a part of main by then.
target_link_options(tervalis PRIVATE -sEXPORT_NAME=Tervalis -sASYNCIFY=1 "-sASYNCIFY_ONLY=main,GetMessageA*,PeekMessageA*,Idle*")
