# Fails when a QML file under ROOT shows a text that cannot be translated: a property a person
# reads (text, title, placeholderText, ToolTip.text, Accessible.name and .description, ...) given
# a literal with a letter in it outside qsTr(...). Texts from C++ (model roles, controller
# properties) are translated there and are not literals here.
if(NOT ROOT)
    message(FATAL_ERROR "usage: cmake -DROOT=src/ui -P check_qml_strings.cmake")
endif()
file(GLOB_RECURSE files ${ROOT}/*.qml)
set(shown "text|title|placeholderText|ToolTip\\.text|Accessible\\.name|Accessible\\.description|label|subtitle|description|header|footer|heading|okText|cancelText|acceptLabel|rejectLabel|infoText|statusText")
set(problems "")
set(count 0)
foreach(file IN LISTS files)
    file(STRINGS ${file} lines ENCODING UTF-8)
    set(number 0)
    foreach(line IN LISTS lines)
        math(EXPR number "${number} + 1")
        # Each property a person reads, on a line of its own or one of several in braces.
        string(REGEX MATCHALL "(^|[{;])[ \t]*(${shown})[ \t]*:[^;}]*" settings "${line}")
        foreach(setting IN LISTS settings)
            # What qsTr, qsTranslate and qsTrId already carry is fine; any literal left holding a
            # letter is shown untranslated.
            string(REGEX REPLACE "qsTr(anslate|Id)?\\([^)]*\\)" "" rest "${setting}")
            string(REGEX REPLACE "^[^:]*:" "" rest "${rest}")
            # A character written as an escape ("\u2715") is a sign, not a word.
            string(REGEX REPLACE "\\\\u[0-9A-Fa-f]+" "" rest "${rest}")
            if(rest MATCHES "\"[^\"]*[A-Za-z][^\"]*\"" OR rest MATCHES "'[^']*[A-Za-z][^']*'")
                file(RELATIVE_PATH shortName ${ROOT} ${file})
                string(STRIP "${line}" stripped)
                string(APPEND problems "  ${shortName}:${number}: ${stripped}\n")
                math(EXPR count "${count} + 1")
                break()
            endif()
        endforeach()
    endforeach()
endforeach()
if(count GREATER 0)
    message(FATAL_ERROR "${count} texts in QML are shown without qsTr():\n${problems}")
endif()
list(LENGTH files fileCount)
message(STATUS "Every text in the ${fileCount} QML files goes through qsTr()")
