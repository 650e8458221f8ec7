# The folder that any web server can serve: the home page and, in game/, what it plays.
set(SITE_DIR ${PROJECT_SOURCE_DIR}/build/web CACHE PATH "Folder of the home page with the game")
set(GAME_DIR ${SITE_DIR}/game)
find_program(OGGENC oggenc REQUIRED)
find_program(PYFTSUBSET pyftsubset REQUIRED)
set(FONT_FOLDER /usr/share/fonts/truetype/dejavu)
# What Windows-1252 has, the game's character set.
set(CHARACTERS "U+20-7E,U+A0-FF,U+152,U+153,U+160,U+161,U+178,U+17D,U+17E,U+192,U+2C6,U+2DC,U+2013,U+2014")
string(APPEND CHARACTERS ",U+2018-201A,U+201C-201E,U+2020-2022,U+2026,U+2030,U+2039,U+203A,U+20AC,U+2122")

set(GAME_FILES)
# add_game_file(NAME DEPENDENCY COMMAND...): a file of the game, made by that command.
function(add_game_file NAME DEPENDENCY)
    cmake_path(GET NAME PARENT_PATH FOLDER)
    add_custom_command(
        OUTPUT ${GAME_DIR}/${NAME}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${GAME_DIR}/${FOLDER}
        COMMAND ${ARGN}
        DEPENDS ${DEPENDENCY} VERBATIM)
    set(GAME_FILES ${GAME_FILES} ${NAME} PARENT_SCOPE)
endfunction()

foreach(WAVE ${WAVE_FILES})
    cmake_path(GET WAVE STEM NAME)
    add_game_file(Wav/${NAME}.ogg ${WAVE} ${OGGENC} -Q -q 2 -o ${GAME_DIR}/Wav/${NAME}.ogg ${WAVE})
endforeach()
add_game_file(Fonts/DejaVuSans-Bold.ttf "" ${PYFTSUBSET} ${FONT_FOLDER}/DejaVuSans-Bold.ttf --unicodes=${CHARACTERS}
    --layout-features= --no-hinting --notdef-outline --drop-tables+=FFTM
    --output-file=${GAME_DIR}/Fonts/DejaVuSans-Bold.ttf)
add_game_file(Dat/Image.xpf ${RUNTIME_DIR}/Dat/Image.xpf
    ${CMAKE_COMMAND} -E copy ${RUNTIME_DIR}/Dat/Image.xpf ${GAME_DIR}/Dat/Image.xpf)
foreach(PART js wasm)
    add_game_file(tervalis.${PART} tervalis
        ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_BINARY_DIR}/tervalis.${PART} ${GAME_DIR}/tervalis.${PART})
endforeach()

# The page shows how much of them it has loaded.
list(TRANSFORM GAME_FILES PREPEND ${GAME_DIR}/ OUTPUT_VARIABLE GAME_PATHS)
add_custom_command(
    OUTPUT ${GAME_DIR}/files.json
    COMMAND ${CMAKE_COMMAND} -DFOLDER=${GAME_DIR} "-DNAMES=${GAME_FILES}" -P ${CMAKE_CURRENT_SOURCE_DIR}/cmake/list_files.cmake
    DEPENDS ${GAME_PATHS} ${CMAKE_CURRENT_SOURCE_DIR}/cmake/list_files.cmake VERBATIM)

add_custom_target(site ALL
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_CURRENT_SOURCE_DIR}/docs ${SITE_DIR}
    COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_SOURCE_DIR}/packaging/tervalis.ico ${SITE_DIR}/favicon.ico
    COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_SOURCE_DIR}/LICENSES/MIT.txt ${GAME_DIR}/License.txt
    COMMAND ${CMAKE_COMMAND} -E copy /usr/share/doc/fonts-dejavu-core/copyright ${GAME_DIR}/Fonts/License.txt
    COMMAND ${CMAKE_COMMAND} -E copy ${TERVALIS_SOURCES}/libsdl2/LICENSE.txt ${GAME_DIR}/Licenses/SDL2.txt
    COMMAND ${CMAKE_COMMAND} -E copy ${TERVALIS_SOURCES}/freetype/docs/FTL.TXT ${GAME_DIR}/Licenses/FreeType.txt
    COMMAND ${CMAKE_COMMAND} -E copy ${TERVALIS_SOURCES}/libjpeg-turbo/LICENSE.md ${GAME_DIR}/Licenses/libjpeg-turbo.txt
    COMMAND ${CMAKE_COMMAND} -E copy ${TERVALIS_SOURCES}/highway/LICENSE ${GAME_DIR}/Licenses/highway.txt
    DEPENDS ${GAME_DIR}/files.json)
