# Installs the program, its data, and what a desktop needs to show it. packaging/installed_files.txt lists all of it.
install(TARGETS tervalis RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${RUNTIME_DIR}/Dat/Image.xpf DESTINATION ${TERVALIS_DATADIR}/Dat)
install(DIRECTORY assets/wav/ DESTINATION ${TERVALIS_DATADIR}/Wav FILES_MATCHING PATTERN "*.wav")
install(DIRECTORY docs/ DESTINATION ${TERVALIS_DATADIR}/docs)
install(FILES packaging/tervalis.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/tervalis.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/256x256/apps)
