# Compiles one statement that must not compile, and its twin that must: COMPILER, ROOT, FAILS, COMPILES and SAYS, what
# the compiler is to say of the first.

set(ENV{LC_ALL} C)
set(source ${FOLDER}/${NAME}.cpp)

# compile(STATEMENT): runs the compiler on it; sets `status` and `said`.
function(compile statement)
  file(WRITE ${source}
    "#include \"qvn/shared/conversions.h\"\n"
    "#include \"qvn/shared/patterns.h\"\n"
    "using namespace qvn;\n"
    "void use(Currency amount, Decimal percent, Date date, Variant variant, double number, const Locale& locale) {\n"
    "  ${statement};\n"
    "}\n")
  execute_process(COMMAND ${COMPILER} -std=c++20 -fsyntax-only -I${ROOT} ${source}
    RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
  set(status "${status}" PARENT_SCOPE)
  set(said "${said}" PARENT_SCOPE)
endfunction()

compile("${COMPILES}")
if(NOT status STREQUAL 0)
  message(FATAL_ERROR "this must compile: ${COMPILES}\n${said}")
endif()

compile("${FAILS}")
if(status STREQUAL 0)
  message(FATAL_ERROR "this must not compile, and does: ${FAILS}")
endif()
string(REGEX MATCH "error: [^\n]*" complaint "${said}")
if(NOT complaint MATCHES "${SAYS}")
  message(FATAL_ERROR "the compiler refuses \"${FAILS}\", but does not say \"${SAYS}\":\n${said}")
endif()
