# Pictures, manifest and version record of the desktop program.
enable_language(RC)

# They stand in a target of their own: the resource compiler knows none of the project's flags.
function(trovex_add_resources target)
  set(folder ${PROJECT_SOURCE_DIR}/src/Resources)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/generated/Resources/Trovex.rc)
  configure_file(${folder}/Trovex.rc.in ${script} @ONLY)
  file(GLOB pictures CONFIGURE_DEPENDS ${folder}/pictures/*.ico
    ${folder}/pictures/*.bmp)
  set_source_files_properties(${script} PROPERTIES
    OBJECT_DEPENDS "${pictures};${folder}/Trovex.manifest")
  add_library(${target}_resources OBJECT ${script})
  target_include_directories(${target}_resources PRIVATE ${folder})
  target_link_libraries(${target} PRIVATE ${target}_resources)
endfunction()
