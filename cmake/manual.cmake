# Manual pages from the command's own help, and what completes its command lines.
find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
  set(manual ${CMAKE_BINARY_DIR}/share/man)
  set(writer ${PROJECT_SOURCE_DIR}/packaging/man_pages.py)
  add_custom_command(OUTPUT ${manual}/man1/orv3cal.1
    COMMAND Python3::Interpreter ${writer} $<TARGET_FILE:orv3cal_cli> ${manual}
    DEPENDS orv3cal_cli ${writer}
    COMMENT "Writing the manual pages" VERBATIM)
  add_custom_target(manual ALL DEPENDS ${manual}/man1/orv3cal.1)
  install(DIRECTORY ${manual}/ DESTINATION ${CMAKE_INSTALL_MANDIR})
endif()

set(completions ${PROJECT_SOURCE_DIR}/packaging/completions)
install(FILES ${completions}/orv3cal.bash RENAME orv3cal
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${completions}/_orv3cal DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES ${completions}/orv3cal.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
