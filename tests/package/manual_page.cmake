# Compares the manual page `page` with what `program` tells on --help: the synopsis, each option and operand with what
# follows it, and each exit status, in the order in which they stand.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND "${program}" --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
file(READ "${page}" text)

# found(VARIABLE TEXT REGEX): what the first group of each match holds, a list.
function(found variable text regex)
  string(REGEX MATCHALL "${regex}" matches "${text}")
  list(TRANSFORM matches REPLACE "${regex}" "\\1")
  set(${variable} "${matches}" PARENT_SCOPE)
endfunction()

function(compare what in_page in_help)
  if(NOT in_page STREQUAL in_help)
    message(FATAL_ERROR "${page} has ${what} \"${in_page}\", and --help \"${in_help}\"")
  endif()
endfunction()

# The page's marks for what the help writes plainly; brackets would hide the ends of a list's elements.
string(REPLACE "[" "<" help "${help}")
string(REPLACE "]" ">" help "${help}")
string(REPLACE " Ns | Ns " "|" text "${text}")
string(REGEX REPLACE "(Ar|Cm) " "" text "${text}")
string(REPLACE "Fl -" "--" text "${text}")

string(REGEX REPLACE "^usage: ([^\n]*)\n.*" "\\1" usage "${help}")
string(REGEX REPLACE ".*\n.Nm ([^\n]+)\n.*" "\\1" name "${text}")
string(REGEX REPLACE ".*\n.Sh SYNOPSIS\n.Nm\n(.*)\n.Sh DESCRIPTION\n.*" "\\1" synopsis "${text}")
string(REGEX REPLACE "(^|\n)\\.Op ([^\n]*)" "\\1<\\2>" synopsis "${synopsis}")
string(REGEX REPLACE "(^|\n)\\." "\\1" synopsis "${synopsis}")
string(REPLACE "\n" " " synopsis "${synopsis}")
compare("the synopsis" "${name} ${synopsis}" "${usage}")

found(in_page "${text}" "\n\\.It (--[^\n]*|[A-Z]+)\n")
found(in_help "${help}" "\n  (--[a-z]+( [^ \n]+)?|[A-Z]+)  ")
compare("the options" "${in_page}" "${in_help}")

found(in_page "${text}" "\n\\.It ([0-9])")
found(in_help "${help}" "\n  ([0-9])  ")
compare("the exit statuses" "${in_page}" "${in_help}")
if(NOT in_page)
  message(FATAL_ERROR "${page} has no exit status")
endif()
