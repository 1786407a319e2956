# Fails when the command-line program links a library of the window: Qt Quick, Qml,
# Multimedia, Widgets or PrintSupport.
execute_process(COMMAND ldd ${CLI} OUTPUT_VARIABLE linked RESULT_VARIABLE failed)
if(failed)
    message(FATAL_ERROR "ldd could not read ${CLI}")
endif()
string(REGEX MATCHALL "libQt6(Quick|Qml|Multimedia|Widgets|PrintSupport)[A-Za-z]*\\.so" window "${linked}")
if(window)
    list(REMOVE_DUPLICATES window)
    message(FATAL_ERROR "The command line links window libraries: ${window}")
endif()
message(STATUS "The command line links no window library")
