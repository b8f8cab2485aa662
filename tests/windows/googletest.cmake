# GoogleTest for Windows: Debian has it as source.

set(QVN_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "Where the sources of GoogleTest lie")
set(googletest ${QVN_GOOGLETEST_SOURCE}/googletest)
set(googlemock ${QVN_GOOGLETEST_SOURCE}/googlemock)

# Its headers are another's: their warnings are not errors here.
add_library(qvn_gmock STATIC ${googletest}/src/gtest-all.cc ${googlemock}/src/gmock-all.cc)
add_library(GTest::gmock ALIAS qvn_gmock)
target_compile_features(qvn_gmock PUBLIC cxx_std_20)
target_include_directories(qvn_gmock SYSTEM PUBLIC ${googletest}/include ${googlemock}/include
  PRIVATE ${googletest} ${googlemock})

add_library(qvn_gtest_main STATIC ${googletest}/src/gtest_main.cc)
add_library(GTest::gtest_main ALIAS qvn_gtest_main)
target_link_libraries(qvn_gtest_main PUBLIC qvn_gmock)
