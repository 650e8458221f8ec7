set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
# Every processor that runs a living Windows has SSE2; its arithmetic also gives the same results as 64-bit code.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
