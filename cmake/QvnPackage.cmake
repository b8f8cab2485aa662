# What `cmake --install` lays down: libraries, headers under the paths they have in the tree, programs, and what
# find_package(qvn) needs.

include(CMakePackageConfigHelpers)

get_property(libraries GLOBAL PROPERTY QVN_INSTALLED)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/qvn)

# All libraries at once, for those who do not care for the layers.
add_library(qvn_all INTERFACE)
add_library(qvn::qvn ALIAS qvn_all)
target_link_libraries(qvn_all INTERFACE ${libraries})
set_target_properties(qvn_all PROPERTIES EXPORT_NAME qvn)

install(TARGETS ${libraries} qvn_all EXPORT qvn)
install(EXPORT qvn NAMESPACE qvn:: DESTINATION ${package_dir} FILE qvn-targets.cmake)

# Apart from the layers, as a host in C needs none of what they rest on.
if(TARGET qvn_component)
  install(TARGETS qvn_component EXPORT qvn_component LIBRARY COMPONENT library NAMELINK_COMPONENT development)
  install(EXPORT qvn_component NAMESPACE qvn:: DESTINATION ${package_dir} FILE qvn-component-targets.cmake)
  install(FILES component/qvn.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/component)
endif()

# The headers of what was built, and of nothing else.
file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
  ${PROJECT_SOURCE_DIR}/qvn/*.h ${PROJECT_SOURCE_DIR}/platforms/*.h)
if(NOT QVN_SQLITE)
  list(FILTER headers EXCLUDE REGEX "^platforms/sqlite/")
endif()
if(NOT QVN_QT)
  list(FILTER headers EXCLUDE REGEX "^platforms/qt/")
endif()
if(NOT QVN_DESIGNER)
  list(FILTER headers EXCLUDE REGEX "^platforms/designer/")
endif()
foreach(header IN LISTS headers)
  cmake_path(GET header PARENT_PATH folder)
  install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endforeach()

find_program(gzip gzip)

# qvn_manual_page(PROGRAM): installs docs/man/PROGRAM.1, compressed as is usual where that can be done.
function(qvn_manual_page program)
  set(page ${PROJECT_SOURCE_DIR}/docs/man/${program}.1)
  if(gzip)
    execute_process(COMMAND ${gzip} -9nc ${page} OUTPUT_FILE ${PROJECT_BINARY_DIR}/man/${program}.1.gz
      COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${page})
    set(page ${PROJECT_BINARY_DIR}/man/${program}.1.gz)
  endif()
  install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT office)
endfunction()

file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/man)
foreach(program qvn-play qvn-campione qvn-ufficio)
  string(REPLACE "-" "_" target ${program})
  if(TARGET ${target})
    install(TARGETS ${target} COMPONENT office)
    qvn_manual_page(${program})
  endif()
endforeach()

configure_package_config_file(cmake/qvn-config.cmake.in qvn-config.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(qvn-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/qvn-config.cmake ${PROJECT_BINARY_DIR}/qvn-config-version.cmake
  DESTINATION ${package_dir})
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT licence)

if(PROJECT_IS_TOP_LEVEL AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
  include(cmake/QvnPackageDebian.cmake)
endif()

if(QVN_TESTS AND NOT CMAKE_CROSSCOMPILING)
  add_subdirectory(tests/package)
endif()
