# What is installed, and the packages that cpack makes of it: a .deb for the system (component
# system: FHS paths, the program folder is the user's own) and a .tar.gz to unpack anywhere (component
# portable: the program folder is the executable's).
# The umask of cpack shows in the modes of folders: it is to be 022.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/tracewell)

set(READ_FIRST ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
               ${PROJECT_SOURCE_DIR}/SECURITY.md)
set(DESKTOP_FILES ${PROJECT_SOURCE_DIR}/packaging/desktop)

set(PROGRAMS tracewell krm410-sim)
if(TRACEWELL_RECORDER)
  list(APPEND PROGRAMS tracewell-record)
endif()
install(TARGETS ${PROGRAMS} COMPONENT system)
# The program looks for its modules there, whatever the machine calls its folder of libraries.
install(TARGETS ${MODULES} LIBRARY DESTINATION lib/tracewell COMPONENT system)
install(FILES ${PROGRAM_FILES} DESTINATION ${CMAKE_INSTALL_DATADIR}/tracewell COMPONENT system)
install(FILES ${DESKTOP_FILES}/tracewell.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT system)
install(FILES ${DESKTOP_FILES}/tracewell.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT system)
install(FILES ${PROJECT_SOURCE_DIR}/desktop/tracewell.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT system)
install(FILES ${PROJECT_SOURCE_DIR}/desktop/tracewell.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/256x256/apps COMPONENT system)
install(FILES ${DESKTOP_FILES}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT system)
install(FILES ${READ_FIRST} DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT system)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT system)

# Compressed without a time stamp, so that the same sources make the same package.
function(install_compressed SOURCE NAME DESTINATION)
  set(COMPRESSED ${CMAKE_CURRENT_BINARY_DIR}/${NAME})
  add_custom_command(OUTPUT ${COMPRESSED} DEPENDS ${SOURCE}
                     COMMAND gzip -9 -n -c ${SOURCE} > ${COMPRESSED})
  add_custom_target(compressed-${NAME} ALL DEPENDS ${COMPRESSED})
  install(FILES ${COMPRESSED} DESTINATION ${DESTINATION} COMPONENT system)
endfunction()
install_compressed(${DESKTOP_FILES}/changelog changelog.gz ${CMAKE_INSTALL_DOCDIR})
install_compressed(${DESKTOP_FILES}/tracewell.1 tracewell.1.gz ${CMAKE_INSTALL_MANDIR}/man1)
install_compressed(${DESKTOP_FILES}/krm410-sim.1 krm410-sim.1.gz ${CMAKE_INSTALL_MANDIR}/man1)
if(TRACEWELL_RECORDER)
  install_compressed(${DESKTOP_FILES}/tracewell-record.1 tracewell-record.1.gz
                     ${CMAKE_INSTALL_MANDIR}/man1)
endif()

install(TARGETS ${PROGRAMS} RUNTIME DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(TARGETS ${MODULES} LIBRARY DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(PROGRAMS ${DESKTOP_FILES}/start DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES ${PROGRAM_FILES} ${READ_FIRST} LICENSE DESTINATION . COMPONENT portable
        EXCLUDE_FROM_ALL)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME tracewell)
set(CPACK_PACKAGE_CONTACT "The Tracewell developers <tracewell@tracewell.invalid>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
# Without it the package would come out without its dependencies, and nobody would be told.
find_program(SHLIBDEPS dpkg-shlibdeps REQUIRED)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The time of the release is the time of every file in its packages.
find_program(PARSECHANGELOG dpkg-parsechangelog REQUIRED)
execute_process(COMMAND ${PARSECHANGELOG} -l ${DESKTOP_FILES}/changelog -S Timestamp
                OUTPUT_VARIABLE CPACK_RELEASE_TIME OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${DESKTOP_FILES}/changelog)
# Screens that are no X server, the words of the Chinese entries, Qt's dialogs in other languages.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, fonts-wqy-microhei, qt6-translations-l10n")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "front panel of a two-channel storage oscilloscope")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Tracewell operates the KRM-410, a two-channel digital storage oscilloscope on
an RS-232 line, also behind a serial device server: live traces, settings,
cursors, measurements, saved waveforms, status reports and raw commands, in
five languages. A simulated instrument is built in.")
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/PackagePerGenerator.cmake)
set(CPACK_BUILD_DIR ${PROJECT_BINARY_DIR})
include(CPack)
