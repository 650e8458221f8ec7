# Installs the program with its data in a folder of its own, since it looks for them beside itself, a link to it among
# the programs, and what a desktop needs to show it.
include(GNUInstallDirs)
set(GAME_DIR ${CMAKE_INSTALL_LIBDIR}/tervalis)

install(TARGETS tervalis RUNTIME DESTINATION ${GAME_DIR})
install(FILES ${RUNTIME_DIR}/Dat/Image.xpf DESTINATION ${GAME_DIR}/Dat)
install(DIRECTORY assets/wav/ DESTINATION ${GAME_DIR}/Wav FILES_MATCHING PATTERN "*.wav")
install(DIRECTORY docs/ DESTINATION ${GAME_DIR}/docs)
install(FILES packaging/tervalis.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/tervalis.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/256x256/apps)
install(CODE "
    set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
    file(MAKE_DIRECTORY \"\${bin}\")
    file(CREATE_LINK ../${GAME_DIR}/tervalis \"\${bin}/tervalis\" SYMBOLIC)
")
