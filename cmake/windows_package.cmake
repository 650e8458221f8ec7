# What players get: tools/windows_package.sh makes an archive and an installer of what is installed here.
install(TARGETS tervalis DESTINATION .)
install(DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/Dat ${CMAKE_CURRENT_BINARY_DIR}/Wav ${CMAKE_CURRENT_BINARY_DIR}/docs
        DESTINATION . PATTERN .copied EXCLUDE)
install(FILES LICENSES/MIT.txt DESTINATION . RENAME License.txt)

# The licences of what is linked into the program ask to travel with it.
function(install_licences LIBRARY)
    install(FILES ${ARGN} DESTINATION Licenses/${LIBRARY})
endfunction()
function(install_licence_of_package PACKAGE)
    find_file(COPYRIGHT_${PACKAGE} copyright PATHS /usr/share/doc /usr/local/share/doc PATH_SUFFIXES ${PACKAGE}
              NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    install_licences(${PACKAGE} ${COPYRIGHT_${PACKAGE}})
endfunction()
install_licences(libjpeg-turbo ${TERVALIS_SOURCES}/libjpeg-turbo/LICENSE.md
                 ${TERVALIS_SOURCES}/libjpeg-turbo/README.ijg)
install_licences(highway ${TERVALIS_SOURCES}/highway/LICENSE)
install_licence_of_package(mingw-w64-common)
install_licence_of_package(gcc-mingw-w64-base)

set(WINDOWS_ARCHIVE Tervalis-${PROJECT_VERSION}-windows-${CMAKE_SYSTEM_PROCESSOR})
add_custom_target(windows_package
    COMMAND ${PROJECT_SOURCE_DIR}/tools/windows_package.sh ${PROJECT_BINARY_DIR} ${WINDOWS_ARCHIVE} ${PROJECT_VERSION}
            ${TERVALIS_ID} ${CMAKE_SYSTEM_PROCESSOR}
    DEPENDS tervalis assets VERBATIM)
