# Fails when a text the sources mark for translation (tr, qsTr, QT_TRANSLATE_NOOP, ...) has no
# finished translation in TS: lupdate brings a scratch copy up to date with SOURCES, the way
# update_translations does, and the copy must hold no unfinished message. Texts the sources no
# longer use (vanished) do not count.
foreach(variable LUPDATE TS SOURCES SCRATCH)
    if(NOT ${variable})
        message(FATAL_ERROR "usage: cmake -DLUPDATE=... -DTS=... -DSOURCES=... -DSCRATCH=... -P check_translations.cmake")
    endif()
endforeach()
get_filename_component(name ${TS} NAME)
file(MAKE_DIRECTORY ${SCRATCH})
file(COPY_FILE ${TS} ${SCRATCH}/${name})
execute_process(COMMAND ${LUPDATE} ${SOURCES} -ts ${SCRATCH}/${name} -locations none -no-ui-lines
                OUTPUT_VARIABLE said ERROR_VARIABLE said RESULT_VARIABLE failed)
if(failed)
    message(FATAL_ERROR "lupdate failed:\n${said}")
endif()
file(READ ${SCRATCH}/${name} updated)
string(REGEX MATCHALL "<source>[^<]*</source>[ \t\r\n]*(<comment>[^<]*</comment>[ \t\r\n]*)?<translation type=\"unfinished\"" unfinished "${updated}")
list(LENGTH unfinished count)
if(count GREATER 0)
    set(texts "")
    foreach(entry IN LISTS unfinished)
        string(REGEX REPLACE "<source>([^<]*)</source>.*" "\\1" text "${entry}")
        string(APPEND texts "  ${text}\n")
    endforeach()
    message(FATAL_ERROR "${count} texts have no translation in ${name}; run the update_translations target and "
                        "translate them:\n${texts}")
endif()
string(REGEX MATCH "Found [0-9]+ source text" found "${said}")
message(STATUS "${name}: every text translated (${found}s)")
