# The pack and the waves lie beside the program: Dat/Image.xpf and Wav/.
set(RUNTIME_DIR ${CMAKE_CURRENT_BINARY_DIR})
file(GLOB IMAGE_FILES CONFIGURE_DEPENDS assets/image/*)
file(GLOB WAVE_FILES CONFIGURE_DEPENDS assets/wav/*.wav)

add_custom_command(
    OUTPUT ${RUNTIME_DIR}/Dat/Image.xpf
    COMMAND ${CMAKE_COMMAND} -E make_directory ${RUNTIME_DIR}/Dat
    COMMAND pack_builder ${CMAKE_CURRENT_SOURCE_DIR}/assets/image ${RUNTIME_DIR}/Dat/Image.xpf
    DEPENDS pack_builder ${IMAGE_FILES}
    COMMENT "Packing the pictures")
add_custom_command(
    OUTPUT ${RUNTIME_DIR}/Wav/.copied
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_CURRENT_SOURCE_DIR}/assets/wav ${RUNTIME_DIR}/Wav
    COMMAND ${CMAKE_COMMAND} -E touch ${RUNTIME_DIR}/Wav/.copied
    DEPENDS ${WAVE_FILES}
    COMMENT "Copying the waves")

# The home page that the main menu opens.
file(GLOB_RECURSE PAGE_FILES CONFIGURE_DEPENDS docs/*)
add_custom_command(
    OUTPUT ${RUNTIME_DIR}/docs/.copied
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_CURRENT_SOURCE_DIR}/docs ${RUNTIME_DIR}/docs
    COMMAND ${CMAKE_COMMAND} -E touch ${RUNTIME_DIR}/docs/.copied
    DEPENDS ${PAGE_FILES}
    COMMENT "Copying the home page")

add_custom_target(assets ALL DEPENDS ${RUNTIME_DIR}/Dat/Image.xpf ${RUNTIME_DIR}/Wav/.copied ${RUNTIME_DIR}/docs/.copied)
