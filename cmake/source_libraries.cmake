# Libraries that are built along, from the sources that tools/fetch_sources.sh leaves here, and the tool that packs the
# pictures while building. JPEG_OPTIONS are further ones for libjpeg-turbo.
include(ExternalProject)

set(TERVALIS_SOURCES ${PROJECT_SOURCE_DIR}/build/sources CACHE PATH "Folder of the libraries' sources")

# add_source_library(NAME PACKAGE ARCHIVE TARGET OPTION...): the static library NAME, which is ARCHIVE in the build folder
# ${NAME}_DIR and what TARGET makes of the sources of PACKAGE.
function(add_source_library NAME PACKAGE ARCHIVE TARGET)
    if(NOT EXISTS ${TERVALIS_SOURCES}/${PACKAGE})
        message(FATAL_ERROR "${TERVALIS_SOURCES}/${PACKAGE} is missing: run tools/fetch_sources.sh ${PACKAGE}")
    endif()
    set(FOLDER ${CMAKE_CURRENT_BINARY_DIR}/${PACKAGE})
    ExternalProject_Add(${NAME}_build
        SOURCE_DIR ${TERVALIS_SOURCES}/${PACKAGE}
        BINARY_DIR ${FOLDER}
        CMAKE_ARGS -DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE} -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF
                   -DCMAKE_INSTALL_PREFIX=${FOLDER} ${ARGN}
        BUILD_COMMAND ${CMAKE_COMMAND} --build <BINARY_DIR> --target ${TARGET}
        INSTALL_COMMAND ""
        BUILD_BYPRODUCTS ${FOLDER}/${ARCHIVE})
    add_library(${NAME} STATIC IMPORTED)
    set_target_properties(${NAME} PROPERTIES IMPORTED_LOCATION ${FOLDER}/${ARCHIVE})
    add_dependencies(${NAME} ${NAME}_build)
    set(${NAME}_DIR ${FOLDER} PARENT_SCOPE)
endfunction()

add_source_library(turbojpeg libjpeg-turbo libturbojpeg.a turbojpeg-static -DENABLE_SHARED=OFF ${JPEG_OPTIONS}
    -DBUILD=tervalis) # else the day of the build is in the library
target_include_directories(turbojpeg INTERFACE ${TERVALIS_SOURCES}/libjpeg-turbo)

# What finds out the processor's instruction sets; the kernels themselves are in the headers.
set(HWY_DIR ${TERVALIS_SOURCES}/highway)
add_library(hwy STATIC ${HWY_DIR}/hwy/targets.cc ${HWY_DIR}/hwy/per_target.cc)
target_include_directories(hwy SYSTEM PUBLIC ${HWY_DIR})
target_compile_options(hwy PRIVATE -w)

set(HOST_TOOLS_DIR ${CMAKE_CURRENT_BINARY_DIR}/host_tools)
ExternalProject_Add(host_tools
    SOURCE_DIR ${PROJECT_SOURCE_DIR}/cmake/host_tools
    BINARY_DIR ${HOST_TOOLS_DIR}
    CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release
    BUILD_ALWAYS ON
    INSTALL_COMMAND ""
    BUILD_BYPRODUCTS ${HOST_TOOLS_DIR}/pack_builder)
add_executable(pack_builder IMPORTED)
set_target_properties(pack_builder PROPERTIES IMPORTED_LOCATION ${HOST_TOOLS_DIR}/pack_builder)
add_dependencies(pack_builder host_tools)
