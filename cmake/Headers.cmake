# Header-only libraries of the system, reachable when cross-compiling too, where /usr/include
# itself must stay out of the search path.
add_library(trovex_headers INTERFACE)
foreach(library CLI nlohmann)
  find_path(${library}_DIR NAMES ${library} PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/headers)
  file(CREATE_LINK ${${library}_DIR}/${library} ${CMAKE_BINARY_DIR}/headers/${library} SYMBOLIC)
endforeach()
target_include_directories(trovex_headers SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/headers)
