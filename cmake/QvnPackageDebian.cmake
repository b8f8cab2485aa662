# Debian packages, which `cpack` in the build folder makes: libqvn0, libqvn-dev and qvn-ufficio, as far as they were
# built. Each is what was installed under one component.

if(NOT gzip)
  return()
endif()

# qvn_debian_package(NAME COMPONENT word SECTION section SUMMARY line DESCRIPTION text
#                    [DEPENDS packages] [RECOMMENDS packages])
function(qvn_debian_package name)
  cmake_parse_arguments(arg "" "COMPONENT;SECTION;SUMMARY;DESCRIPTION;DEPENDS;RECOMMENDS" "" ${ARGN})
  # In a package alone, and not where all is installed at once.
  set(doc ${CMAKE_INSTALL_DATAROOTDIR}/doc/${name})
  install(FILES LICENSE DESTINATION ${doc} RENAME copyright COMPONENT ${arg_COMPONENT} EXCLUDE_FROM_ALL)
  install(FILES ${PROJECT_BINARY_DIR}/changelog.gz DESTINATION ${doc} COMPONENT ${arg_COMPONENT} EXCLUDE_FROM_ALL)

  string(TOUPPER ${arg_COMPONENT} COMPONENT)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${arg_COMPONENT} PARENT_SCOPE)
  set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_SECTION ${arg_SECTION} PARENT_SCOPE)
  set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_DEPENDS "${arg_DEPENDS}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_RECOMMENDS "${arg_RECOMMENDS}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${COMPONENT}_DESCRIPTION "${arg_SUMMARY}\n${arg_DESCRIPTION}" PARENT_SCOPE)
endfunction()

file(STRINGS cmake/debian/changelog newest LIMIT_COUNT 1)
if(NOT newest MATCHES "^qvn \\(${PROJECT_VERSION}\\) ")
  message(FATAL_ERROR "cmake/debian/changelog begins with another version than ${PROJECT_VERSION}: ${newest}")
endif()
execute_process(COMMAND ${gzip} -9nc ${PROJECT_SOURCE_DIR}/cmake/debian/changelog
  OUTPUT_FILE ${PROJECT_BINARY_DIR}/changelog.gz COMMAND_ERROR_IS_FATAL ANY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/cmake/debian/changelog)

set(needed)
if(TARGET qvn_component)
  qvn_debian_package(libqvn0 COMPONENT library SECTION libs
    SUMMARY "data-entry panels of an insurance broker's back office, C interface"
    DESCRIPTION "Panels with input rules of their own, which a host loads, lets an operator
type into, and reads validated values back from. This is the shared library
for programs in C and for those that load it at run time.")
  set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)
  list(APPEND needed "libqvn0 (= ${PROJECT_VERSION})")
endif()

if(QVN_SQLITE)
  list(APPEND needed libsqlite3-dev)
endif()
if(QVN_QT)
  list(APPEND needed qt6-base-dev)
endif()
list(JOIN needed ", " needed)
qvn_debian_package(libqvn-dev COMPONENT development SECTION libdevel DEPENDS "${needed}"
  SUMMARY "data-entry panels of an insurance broker's back office, for development"
  DESCRIPTION "Panels with input rules of their own, which a host loads, lets an operator
type into, and reads validated values back from. These are the libraries and
headers for hosts in C++ and C, and what CMake and pkg-config find them by.")

if(TARGET qvn_ufficio)
  install(PROGRAMS cmake/debian/qvn-prova DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT office)
  qvn_manual_page(qvn-prova)
  install(FILES cmake/debian/qvn-ufficio.desktop DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications COMPONENT office)
  install(FILES cmake/debian/qvn-ufficio.svg
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/scalable/apps COMPONENT office)
  qvn_debian_package(qvn-ufficio COMPONENT office SECTION misc RECOMMENDS "qt6-translations-l10n, qt6-wayland"
    SUMMARY "sample office of an insurance broker"
    DESCRIPTION "An office with a database of its own, whose records are shown in the panels
of the library qvn, changed and stored. With it come qvn-campione, which
makes the database, and qvn-play, which plays an operator's session without
a screen.")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "the qvn authors <qvn@example.org>")
# Each package tells its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
