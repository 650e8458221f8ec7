# The folder that players unzip and start from: the `package` target makes the archive.
install(TARGETS tervalis DESTINATION .)
install(DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/Dat ${CMAKE_CURRENT_BINARY_DIR}/Wav ${CMAKE_CURRENT_BINARY_DIR}/docs
        DESTINATION . PATTERN .copied EXCLUDE)
install(FILES LICENSES/MIT.txt DESTINATION . RENAME License.txt)
# The licences of what is linked into the program ask to travel with it.
install(FILES ${TERVALIS_SOURCES}/libjpeg-turbo/LICENSE.md ${TERVALIS_SOURCES}/libjpeg-turbo/README.ijg
        DESTINATION Licenses/libjpeg-turbo)
install(FILES ${TERVALIS_SOURCES}/highway/LICENSE DESTINATION Licenses/highway)
install(FILES /usr/share/doc/mingw-w64-common/copyright DESTINATION Licenses/mingw-w64 OPTIONAL)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME Tervalis)
set(CPACK_PACKAGE_VENDOR Tervalis)
set(WINDOWS_ARCHIVE Tervalis-${PROJECT_VERSION}-windows-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_FILE_NAME ${WINDOWS_ARCHIVE})
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY ON)
include(CPack)
