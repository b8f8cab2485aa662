# How every target of the project is made: C++20, all warnings as errors, includes from the root.

add_library(qvn_options INTERFACE)
target_compile_features(qvn_options INTERFACE cxx_std_20)
target_compile_options(qvn_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# The last bit of an amount is the same on every machine: no multiplication melts into an addition.
target_compile_options(qvn_options INTERFACE -ffp-contract=off)

# qvn_library(NAME ALIAS sources... LINKS libraries...): one layer, known as qvn::ALIAS, installed with the package.
function(qvn_library target alias)
  cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
  add_library(${target} ${arg_UNPARSED_ARGUMENTS})
  add_library(qvn::${alias} ALIAS ${target})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                              $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(${target} PUBLIC ${arg_LINKS} PRIVATE $<BUILD_INTERFACE:qvn_options>)
  # They also go into shared libraries, which show nothing of them.
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${alias} POSITION_INDEPENDENT_CODE ON
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  set_property(GLOBAL APPEND PROPERTY QVN_INSTALLED ${target})
endfunction()

# qvn_program(NAME sources... LINKS libraries...)
function(qvn_program target)
  cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
  add_executable(${target} ${arg_UNPARSED_ARGUMENTS})
  target_link_libraries(${target} PRIVATE ${arg_LINKS} qvn_options)
endfunction()

# qvn_test(NAME sources... LINKS libraries...): a GoogleTest program; each of its tests is one of ctest's.
function(qvn_test target)
  cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
  add_executable(${target} ${arg_UNPARSED_ARGUMENTS})
  target_link_libraries(${target} PRIVATE ${arg_LINKS} qvn_options GTest::gtest_main GTest::gmock)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 600)
endfunction()
