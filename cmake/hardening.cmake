# What an optimised program is protected with: checked string and memory functions, a guarded stack, a program that
# lies anywhere in memory and whose tables cannot be written once it runs.
if(NOT CMAKE_BUILD_TYPE MATCHES "^Rel" OR TERVALIS_SANITIZE OR EMSCRIPTEN)
    return()
endif()
if(WIN32)
    add_link_options(-Wl,--dynamicbase -Wl,--nxcompat)
    return()
endif()
add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3 -fstack-protector-strong)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_link_options(-pie -Wl,-z,relro -Wl,-z,now)
