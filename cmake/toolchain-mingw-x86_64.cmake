# Cross-compiles the 64-bit add-on and the test programs that run under Wine with MinGW-w64.
set(KESTO_MINGW_ARCH x86_64)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-common.cmake)
