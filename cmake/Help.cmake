# The help file TROVEX.HLP beside the programs, and the help's pages inside them, made of src/Aide
# by trovex-aide.
#
# That program runs while building. A native build uses its own; a build for another system has one
# compiled here, with the compiler of this system.
file(GLOB help_source CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/Aide/*.txt)
set(help_file ${CMAKE_BINARY_DIR}/TROVEX.HLP)

if(CMAKE_CROSSCOMPILING)
  find_program(TROVEX_HOST_CXX NAMES g++ c++ clang++ REQUIRED NO_CMAKE_FIND_ROOT_PATH)
  set(help_compiler ${CMAKE_BINARY_DIR}/host/trovex-aide)
  set(src ${PROJECT_SOURCE_DIR}/src)
  file(GLOB compiler_sources CONFIGURE_DEPENDS ${src}/Apps/trovex-aide/*.cpp)
  file(GLOB compiler_headers CONFIGURE_DEPENDS ${src}/Apps/trovex-aide/*.h)
  list(APPEND compiler_sources ${src}/Platform/Encoding.cpp ${src}/Platform/Text.cpp)
  add_custom_command(OUTPUT ${help_compiler}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/host
    COMMAND ${TROVEX_HOST_CXX} -std=c++20 -O1 -I ${src} ${compiler_sources} -o ${help_compiler}
    DEPENDS ${compiler_sources} ${compiler_headers}
      ${src}/Platform/Encoding.h ${src}/Platform/Text.h
    COMMENT "Compiling trovex-aide for this system" VERBATIM)
else()
  set(help_compiler $<TARGET_FILE:trovex-aide>)
endif()

add_custom_command(OUTPUT ${help_file}
  COMMAND ${help_compiler} ${PROJECT_SOURCE_DIR}/src/Aide --hlp ${help_file}
  DEPENDS ${help_source} ${help_compiler}
  COMMENT "Making TROVEX.HLP" VERBATIM)
add_custom_target(trovex-help ALL DEPENDS ${help_file})

# Its pages as a source, which the programs carry.
set(help_pages ${CMAKE_CURRENT_BINARY_DIR}/generated/Resources/HelpPages.cpp)
file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/generated/Resources)
add_custom_command(OUTPUT ${help_pages}
  COMMAND ${help_compiler} ${PROJECT_SOURCE_DIR}/src/Aide --cpp ${help_pages}
  DEPENDS ${help_source} ${help_compiler}
  COMMENT "Making the source of the help's pages" VERBATIM)
