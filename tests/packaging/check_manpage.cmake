# The manual page describes every command the command-line tool offers: each command named in
# `platterbox --help` has its own entry in the COMMANDS section.
execute_process(COMMAND ${CLI} --help OUTPUT_VARIABLE usage RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "platterbox --help failed: ${result}")
endif()
file(READ ${MANPAGE} page)
string(REGEX MATCH "\n\\.SH COMMANDS\n.*\n\\.SH [A-Z]" commands_section "${page}")

string(REGEX MATCHALL "\n  [a-z][a-z-]*" names "${usage}")
list(LENGTH names count)
if(count EQUAL 0)
    message(FATAL_ERROR "platterbox --help names no commands:\n${usage}")
endif()
foreach(name IN LISTS names)
    string(STRIP "${name}" name)
    # Manual pages write a hyphen as "\-".
    string(REPLACE "-" "\\\\-" escaped "${name}")
    if(NOT commands_section MATCHES "\n\\.TP\n\\.BI? \"?${escaped}[\" \n]")
        message(FATAL_ERROR "the manual page has no entry for the command '${name}'")
    endif()
endforeach()
