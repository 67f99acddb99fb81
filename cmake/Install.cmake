# What `cmake --install` puts where: on Windows the files that are handed out, side by side; elsewhere
# the command line with its manual, its completions and the help.
include(GNUInstallDirs)

if(WIN32)
  install(TARGETS trovex trovex-cli RUNTIME DESTINATION .)
  install(FILES ${CMAKE_BINARY_DIR}/TROVEX.HLP DESTINATION .)
  return()
endif()

install(TARGETS trovex-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES packaging/man/trovex-cli.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES packaging/man/trovex-cli.fr.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/fr/man1
  RENAME trovex-cli.1)
install(DIRECTORY docs/aide/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/trovex-cli/aide)

# The program itself says what there is to complete.
find_program(PYTHON3 python3)
if(NOT PYTHON3)
  return()
endif()
function(trovex_completion shell name folder)
  set(file ${CMAKE_BINARY_DIR}/completions/${shell}/${name})
  add_custom_command(OUTPUT ${file}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/completions/${shell}
    COMMAND ${PYTHON3} ${PROJECT_SOURCE_DIR}/packaging/completions
      ${shell} $<TARGET_FILE:trovex-cli> ${file}
    DEPENDS trovex-cli ${PROJECT_SOURCE_DIR}/packaging/completions
    COMMENT "Writing the completion for ${shell}" VERBATIM)
  add_custom_target(trovex-completion-${shell} ALL DEPENDS ${file})
  install(FILES ${file} DESTINATION ${CMAKE_INSTALL_DATADIR}/${folder})
endfunction()
trovex_completion(bash trovex-cli bash-completion/completions)
trovex_completion(zsh _trovex-cli zsh/vendor-completions)
trovex_completion(fish trovex-cli.fish fish/vendor_completions.d)
