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
# And, for 32 bits, reads and writes behind the end of short texts.
if(WIN32 AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(trovex_flags INTERFACE
    -Wno-array-bounds -Wno-stringop-overread -Wno-stringop-overflow)
endif()
if(WIN32)
  target_compile_definitions(trovex_flags INTERFACE
    # Windows XP: what is later is not declared, and structures have the sizes that XP knows.
    UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0501 WINVER=0x0501)
  # One file, nothing to install. The stack carries the walk of a very deep tree.
  target_link_options(trovex_flags INTERFACE -static -Wl,--stack,16777216
    -Wl,--no-insert-timestamp # the same bytes from the same sources
    $<$<CONFIG:MinSizeRel>:-s>)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_link_options(trovex_flags INTERFACE
      -Wl,--major-subsystem-version,5,--minor-subsystem-version,1
      -Wl,--major-os-version,5,--minor-os-version,1)
  endif()
endif()

# What the tests' own sources have behind it: nobody waits for their speed, many for their compiling,
# and their arithmetic is not what is on trial.
add_library(trovex_test_flags INTERFACE)
target_link_libraries(trovex_test_flags INTERFACE trovex_flags)
target_compile_options(trovex_test_flags INTERFACE -O0 -g1)
if(WIN32)
  # The tests run on the Windows that is here.
  target_compile_options(trovex_test_flags INTERFACE -g0
    -U_WIN32_WINNT -D_WIN32_WINNT=0x0601 -UWINVER -DWINVER=0x0601)
endif()
if(TROVEX_SANITIZE)
  target_compile_options(trovex_test_flags INTERFACE -fno-sanitize=undefined)
endif()
