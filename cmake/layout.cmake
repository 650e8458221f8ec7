# Where an installed program finds its data: relative to its own folder, so that the whole can be moved, else where this
# build was told to put them. GNUInstallDirs' other folders hold the rest.
set(CMAKE_INSTALL_DOCDIR share/doc/tervalis CACHE PATH "Folder of licence and changelog") # not with a capital
include(GNUInstallDirs)
set(TERVALIS_DATADIR "${CMAKE_INSTALL_DATADIR}/tervalis" CACHE STRING "Folder of the game's data, absolute or below the prefix")

function(make_absolute FOLDER RESULT)
    cmake_path(ABSOLUTE_PATH FOLDER BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} NORMALIZE OUTPUT_VARIABLE FULL)
    set(${RESULT} ${FULL} PARENT_SCOPE)
endfunction()
make_absolute("${CMAKE_INSTALL_BINDIR}" FULL_BINDIR)
make_absolute("${TERVALIS_DATADIR}" FULL_DATADIR)
cmake_path(RELATIVE_PATH FULL_DATADIR BASE_DIRECTORY ${FULL_BINDIR} OUTPUT_VARIABLE DATA_FROM_PROGRAM)
configure_file(packaging/tervalis.6.in packaging/tervalis.6 @ONLY)
set_source_files_properties(src/platform/posix/program_folders.cpp PROPERTIES COMPILE_DEFINITIONS
    "INSTALLED_DATA=\"${FULL_DATADIR}\";DATA_FROM_PROGRAM=\"${DATA_FROM_PROGRAM}\"")
