# Zarvo as a Debian package: `cpack -G DEB` in the build folder. The manual page, copyright
# and changelog go with every install; the rest here is the package's own.

set(CPACK_PACKAGE_NAME zarvo)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Zarvo Developers <developers@zarvo.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "dice game for one to eight players sharing one screen")
set(CPACK_PACKAGE_DESCRIPTION "\
In a turn a player rolls five dice up to three times, keeping any of them\n\
between the rolls, then writes the result into one of the thirteen categories\n\
of the score card. Bonuses reward a strong upper section and every further\n\
five of a kind.\n\
\n\
Zarvo keeps records for each user: the known players with their all-time\n\
statistics, the ten best games and the options of the last run. It is played\n\
with the mouse or with the keyboard alone, and its help explains every rule\n\
with worked examples.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
# The libraries the program links come from the binary; the fonts it names and the help
# engine's SQLite driver are loaded at run time, which no linker sees.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, libqt6sql6-sqlite")
# Qt's own texts (the buttons of a message box, the help's search) in German and French.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
set(CPACK_STRIP_FILES ON)
include(CPack)

# Debian wants these compressed to the utmost and without a time stamp.
function(zarvo_gzip name)
  add_custom_command(OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz
    COMMAND gzip -9nkf ${name}
    DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${name}
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}
    VERBATIM)
endfunction()

configure_file(zarvo.6.in zarvo.6 @ONLY)
execute_process(COMMAND date -u -R -d ${ZARVO_RELEASE_DATE}
                OUTPUT_VARIABLE ZARVO_CHANGELOG_DATE OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
configure_file(changelog.in changelog @ONLY)
zarvo_gzip(zarvo.6)
zarvo_gzip(changelog)
add_custom_target(zarvo_docs ALL DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/zarvo.6.gz
                                         ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zarvo.6.gz DESTINATION share/man/man6)
install(FILES copyright ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz DESTINATION share/doc/zarvo)
