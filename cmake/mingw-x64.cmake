set(TROVEX_MINGW x86_64-w64-mingw32)
set(TROVEX_MINGW_THREADS posix)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
