# What the program needs beyond the system's libraries, built from the sources that tools/fetch_sources.sh leaves here,
# and the tool that packs the pictures while building.
include(ExternalProject)

set(TERVALIS_SOURCES ${PROJECT_SOURCE_DIR}/build/sources CACHE PATH "Folder of the libraries' sources")
foreach(name libjpeg-turbo highway)
    if(NOT EXISTS ${TERVALIS_SOURCES}/${name})
        message(FATAL_ERROR "${TERVALIS_SOURCES}/${name} is missing: run tools/fetch_sources.sh")
    endif()
endforeach()

set(JPEG_DIR ${CMAKE_CURRENT_BINARY_DIR}/libjpeg-turbo)
ExternalProject_Add(libjpeg_turbo
    SOURCE_DIR ${TERVALIS_SOURCES}/libjpeg-turbo
    BINARY_DIR ${JPEG_DIR}
    CMAKE_ARGS -DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE} -DCMAKE_BUILD_TYPE=Release -DENABLE_SHARED=OFF
               -DCMAKE_INSTALL_PREFIX=${JPEG_DIR} -DBUILD=tervalis # else the day of the build is in the library
    BUILD_COMMAND ${CMAKE_COMMAND} --build <BINARY_DIR> --target turbojpeg-static
    INSTALL_COMMAND ""
    BUILD_BYPRODUCTS ${JPEG_DIR}/libturbojpeg.a)
add_library(turbojpeg STATIC IMPORTED)
set_target_properties(turbojpeg PROPERTIES IMPORTED_LOCATION ${JPEG_DIR}/libturbojpeg.a)
target_include_directories(turbojpeg INTERFACE ${TERVALIS_SOURCES}/libjpeg-turbo)
add_dependencies(turbojpeg libjpeg_turbo)

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
