# The one place of compiler flags: every target of the project links trovex_flags.
add_library(trovex_flags INTERFACE)
target_compile_options(trovex_flags INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-align
  -Woverloaded-virtual -Wdouble-promotion -Wimplicit-fallthrough)
# GCC 12 sees overlapping copies in `"text" + std::to_string(n)` where there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(trovex_flags INTERFACE -Wno-restrict)
endif()
if(TROVEX_SANITIZE)
  target_compile_options(trovex_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # GCC 12 takes what the sanitizers insert for uses of uninitialized values.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(trovex_flags INTERFACE -Wno-maybe-uninitialized)
  endif()
  target_link_options(trovex_flags INTERFACE -fsanitize=address,undefined)
endif()
if(TROVEX_FUZZ)
  target_compile_options(trovex_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(WIN32)
  target_compile_definitions(trovex_flags INTERFACE
    UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601 WINVER=0x0601)
  # One file, nothing to install. The stack carries the walk of a very deep tree.
  target_link_options(trovex_flags INTERFACE -static -Wl,--stack,16777216)
endif()
