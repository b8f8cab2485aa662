# Makes the Debian packages of the build tree `build`, unpacks them into an empty root with dpkg, runs the programs from
# there, and builds hosts against what lies there. Their scripts are not run, so that no root is needed.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/everything.cmake)

set(root "${work}/root")
file(REMOVE_RECURSE "${work}")
file(MAKE_DIRECTORY "${root}/var/lib/dpkg/updates" "${root}/var/lib/dpkg/info")
file(TOUCH "${root}/var/lib/dpkg/status")

function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE said ERROR_VARIABLE complained RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "ended with ${status}: ${ARGN}\n${said}\n${complained}")
  endif()
  set(said "${said}" PARENT_SCOPE)
endfunction()

run(${CPACK} --config "${build}/CPackConfig.cmake" -B "${work}/packages")
file(GLOB packages "${work}/packages/*.deb")

# What each package is called, and what it must depend on, as far as that was built.
set(expected libqvn-dev qvn-ufficio)
set(libqvn-dev libsqlite3-dev qt6-base-dev)
set(qvn-ufficio libc6 libstdc\\+\\+6 libqt6widgets6 libsqlite3-0)
if(component)
  list(APPEND expected libqvn0)
  list(APPEND libqvn-dev "libqvn0 \\(= ${version}\\)")
  set(libqvn0 libc6 libstdc\\+\\+6 libsqlite3-0)
endif()
set(found)
foreach(package IN LISTS packages)
  run(dpkg-deb --field "${package}" Package)
  string(STRIP "${said}" name)
  list(APPEND found ${name})
  run(dpkg-deb --field "${package}" Depends)
  foreach(needed IN LISTS ${name})
    if(NOT said MATCHES "(^|, )${needed}( |,|\n)")
      message(FATAL_ERROR "${name} does not depend on ${needed}, but on ${said}")
    endif()
  endforeach()
endforeach()
list(SORT expected)
list(SORT found)
if(NOT found STREQUAL expected)
  message(FATAL_ERROR "The packages are ${found} instead of ${expected}")
endif()

# The machine that builds has all that the packages depend on; the empty root has not.
run(dpkg --root=${root} --force-not-root --force-depends --log=${work}/dpkg.log --unpack ${packages})

set(here ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${root}/usr/lib XDG_DATA_HOME=${work}/data QT_QPA_PLATFORM=offscreen)
if(play)
  run(${here} "${root}/usr/bin/qvn-play" --strict "${source}/tests/structure/shown/readme.session")
  if(NOT said MATCHES "ORDINARIA")
    message(FATAL_ERROR "qvn-play said:\n${said}")
  endif()
endif()

# As the menu of a desktop opens it, but for the pictures.
file(STRINGS "${root}/usr/share/applications/qvn-ufficio.desktop" command REGEX "^Exec=")
string(REPLACE "Exec=" "" command "${command}")
run(${here} "${root}/usr/bin/${command}" --picture "${work}/pictures")
file(GLOB pictures "${work}/pictures/*.png")
set(database "${work}/data/qvn/ufficio.db")
if(NOT pictures OR NOT EXISTS "${database}")
  message(FATAL_ERROR "${command} made neither the database nor the pictures of the office: ${pictures}")
endif()

# What is stored in the database is kept.
run(${here} "${root}/usr/bin/qvn-campione" --force --storage text "${database}")
file(SHA256 "${database}" stored)
run(${here} "${root}/usr/bin/${command}" --picture "${work}/pictures")
file(SHA256 "${database}" kept)
if(NOT kept STREQUAL stored)
  message(FATAL_ERROR "${command} made the database anew")
endif()

file(STRINGS "${root}/usr/share/applications/qvn-ufficio.desktop" icon REGEX "^Icon=")
string(REPLACE "Icon=" "" icon "${icon}")
if(NOT EXISTS "${root}/usr/share/icons/hicolor/scalable/apps/${icon}.svg")
  message(FATAL_ERROR "There is no icon ${icon}")
endif()

file(GLOB programs RELATIVE "${root}/usr/bin" "${root}/usr/bin/*")
foreach(program IN LISTS programs)
  if(NOT EXISTS "${root}/usr/share/man/man1/${program}.1.gz")
    message(FATAL_ERROR "${program} has no manual page")
  endif()
endforeach()

# Hosts in C++ and in C, of what the packages for them have laid down.
everything_runs("${root}/usr" "${work}/everything")
if(component)
  run(${CMAKE_COMMAND}
    -D sample=c
    -D "page=${source}/docs/embedding.md"
    -D "work=${work}/c"
    -D "prefix=${root}/usr"
    -D "c_compiler=${c_compiler}"
    -D "compiler=${compiler}"
    "-Dflags=${flags}"
    -D "generator=${generator}"
    -P "${source}/tests/samples/sample.cmake")
endif()
