# Cross-compiles the shipped 32-bit add-on with MinGW-w64.
set(KESTO_MINGW_ARCH i686)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-common.cmake)
