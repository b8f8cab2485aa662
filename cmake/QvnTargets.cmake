# How every target of the project is made: C++20, all warnings as errors, includes from the root.

# What is installed and names no component is for those who build upon the library.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME development)

add_library(qvn_options INTERFACE)
target_compile_features(qvn_options INTERFACE cxx_std_20)
target_compile_options(qvn_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# The last bit of an amount is the same on every machine: no multiplication melts into an addition.
target_compile_options(qvn_options INTERFACE -ffp-contract=off)
if(MINGW)
  # The headers offer localtime_r where it is asked for.
  target_compile_definitions(qvn_options INTERFACE _POSIX_THREAD_SAFE_FUNCTIONS)
endif()

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

# qvn_test(NAME sources... LINKS libraries...): a GoogleTest program; each of its tests is one of ctest's where it runs on
# the machine that builds it.
function(qvn_test target)
  cmake_parse_arguments(arg "" "" "LINKS" ${ARGN})
  add_executable(${target} ${arg_UNPARSED_ARGUMENTS})
  target_link_libraries(${target} PRIVATE ${arg_LINKS} qvn_options GTest::gtest_main GTest::gmock)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  # g++ 12 sees strings overlap that are joined by +.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
  if(QVN_TEST_BATCH)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${QVN_TEST_BATCH})
  endif()
  if(NOT CMAKE_CROSSCOMPILING)
    gtest_discover_tests(${target} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 600)
  endif()
endfunction()
