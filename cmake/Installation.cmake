# What `cmake --install` puts where, and the target `uninstall`.
include(GNUInstallDirs)
set(QUILVANE_ZSH_DIR ${CMAKE_INSTALL_DATADIR}/zsh/site-functions CACHE STRING "Where zsh looks for completions")

install(TARGETS ${QUILVANE_PROGRAMMES} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})

function(installer_manuels programme dossier)
  install(FILES ${dossier}/en/${programme}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${dossier}/fr/${programme}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/fr/man1)
endfunction()
function(installer_completions programme dossier)
  install(FILES ${dossier}/${programme}.bash RENAME ${programme}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES ${dossier}/${programme}.zsh RENAME _${programme} DESTINATION ${QUILVANE_ZSH_DIR})
  install(FILES ${dossier}/${programme}.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
endfunction()
installer_manuels(quilvane ${PROJECT_SOURCE_DIR}/doc/man)

if(TARGET quilvane-guide)
  # The guide writes its own manual and completions.
  set(ecrits)
  function(faire_ecrire fichier)
    set(sortie ${PROJECT_BINARY_DIR}/${fichier})
    get_filename_component(dossier ${sortie} DIRECTORY)
    file(MAKE_DIRECTORY ${dossier})
    list(JOIN ARGN " " arguments)
    add_custom_command(OUTPUT ${sortie}
      COMMAND sh -c "LC_ALL=C '$<TARGET_FILE:quilvane-guide>' ${arguments} >'${sortie}'"
      DEPENDS quilvane-guide VERBATIM)
    set(ecrits ${ecrits} ${sortie} PARENT_SCOPE)
  endfunction()
  faire_ecrire(manuel/en/quilvane-guide.1 manuel --langue en)
  faire_ecrire(manuel/fr/quilvane-guide.1 manuel --langue fr)
  faire_ecrire(completions/quilvane-guide.bash completion bash)
  faire_ecrire(completions/quilvane-guide.zsh completion zsh)
  faire_ecrire(completions/quilvane-guide.fish completion fish)
  add_custom_target(manuel ALL DEPENDS ${ecrits})
  installer_manuels(quilvane-guide ${PROJECT_BINARY_DIR}/manuel)
  installer_completions(quilvane-guide ${PROJECT_BINARY_DIR}/completions)
endif()

if(TARGET quilvane-lot)
  installer_manuels(quilvane-lot ${PROJECT_SOURCE_DIR}/doc/man)
  installer_completions(quilvane-lot ${PROJECT_SOURCE_DIR}/completions)

  # The unit names the program under the prefix of the installation, which is
  # known then and not before.
  install(CODE "
    set(BINDIR \${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR})
    configure_file(${PROJECT_SOURCE_DIR}/systemd/quilvane-lot@.service.in
      ${PROJECT_BINARY_DIR}/systemd/quilvane-lot@.service @ONLY)
    configure_file(${PROJECT_SOURCE_DIR}/systemd/cron.exemple.in
      ${PROJECT_BINARY_DIR}/systemd/cron.exemple @ONLY)")
  install(FILES ${PROJECT_BINARY_DIR}/systemd/quilvane-lot@.service
    systemd/quilvane-lot@.path systemd/quilvane-lot@.timer DESTINATION lib/systemd/system)
  install(FILES systemd/sysusers.conf RENAME quilvane.conf DESTINATION lib/sysusers.d)
  install(FILES systemd/tmpfiles.conf RENAME quilvane.conf DESTINATION lib/tmpfiles.d)
  install(FILES ${PROJECT_BINARY_DIR}/systemd/cron.exemple DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()

file(GLOB documents CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/*.md ${PROJECT_SOURCE_DIR}/doc/*.md
  ${PROJECT_SOURCE_DIR}/doc/*.json ${PROJECT_SOURCE_DIR}/doc/*.png)
list(FILTER documents EXCLUDE REGEX "/CONTRIBUTING.md$")
install(FILES ${documents} DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY exemples DESTINATION ${CMAKE_INSTALL_DOCDIR})
# Where the target `page` has been built.
install(FILES ${PROJECT_SOURCE_DIR}/build/page/quilvane.html DESTINATION ${CMAKE_INSTALL_DOCDIR} OPTIONAL)

add_custom_target(uninstall
  COMMAND ${CMAKE_COMMAND} -DMANIFESTE=${PROJECT_BINARY_DIR}/install_manifest.txt
    -P ${PROJECT_SOURCE_DIR}/cmake/Desinstaller.cmake
  VERBATIM)

include(${PROJECT_SOURCE_DIR}/cmake/Paquet.cmake)
