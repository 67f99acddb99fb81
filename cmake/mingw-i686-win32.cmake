# The product: this thread model asks for nothing that Windows XP lacks, and the programs need no
# threads.
set(TROVEX_MINGW i686-w64-mingw32)
set(TROVEX_MINGW_THREADS win32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
