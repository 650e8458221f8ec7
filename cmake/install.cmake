# Installs the program, its data, and what a desktop needs to show it. packaging/installed_files.txt lists all of it.
install(TARGETS tervalis RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${RUNTIME_DIR}/Dat/Image.xpf DESTINATION ${TERVALIS_DATADIR}/Dat)
install(DIRECTORY assets/wav/ DESTINATION ${TERVALIS_DATADIR}/Wav FILES_MATCHING PATTERN "*.wav")
install(DIRECTORY docs/ DESTINATION ${TERVALIS_DATADIR}/docs)

set(MADE ${PROJECT_BINARY_DIR}/packaging)
install(FILES ${MADE}/${TERVALIS_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${MADE}/${TERVALIS_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${MADE}/tervalis.6 DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES LICENSES/MIT.txt CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

set(ICONS ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(SIZE 16 24 32 48 64 128 256 512)
    install(FILES packaging/icons/tervalis-${SIZE}.png DESTINATION ${ICONS}/${SIZE}x${SIZE}/apps RENAME ${TERVALIS_ID}.png)
endforeach()
install(FILES packaging/tervalis.svg DESTINATION ${ICONS}/scalable/apps RENAME ${TERVALIS_ID}.svg)
