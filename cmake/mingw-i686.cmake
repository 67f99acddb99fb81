# The test programs: GoogleTest needs the threads of the POSIX model.
set(TROVEX_MINGW i686-w64-mingw32)
set(TROVEX_MINGW_THREADS posix)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
