# The Debian packages of what Qt loads at run time and no binary links, so dpkg-shlibdeps
# cannot see it: the QML modules the app's QML imports (as Qt's own import scanner follows
# them, plus the file dialog's implementation, which Qt Quick Dialogs loads by itself) and
# the SQLite driver of the store. Each is looked up with dpkg from the file this build uses;
# a module not installed here (another platform's style) is left out.
function(platterbox_runtime_packages out)
    set(${out} "" PARENT_SCOPE)
    find_program(PB_DPKG_QUERY dpkg-query)
    get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
    if(NOT PB_DPKG_QUERY OR NOT qmake)
        message(STATUS "Not a Debian system: the package lists only the libraries it links")
        return()
    endif()
    foreach(var QT_INSTALL_QML QT_INSTALL_PLUGINS QT_INSTALL_LIBEXECS)
        execute_process(COMMAND ${qmake} -query ${var} OUTPUT_VARIABLE ${var} OUTPUT_STRIP_TRAILING_WHITESPACE)
    endforeach()

    execute_process(
        COMMAND ${QT_INSTALL_LIBEXECS}/qmlimportscanner
                -rootPath ${PROJECT_SOURCE_DIR}/src
                -rootPath ${QT_INSTALL_QML}/QtQuick/Dialogs/quickimpl/qml
                -importPath ${QT_INSTALL_QML}
        OUTPUT_VARIABLE imports ERROR_QUIET)
    # QtQml, which QtQuick imports, is built into its library and brings QtQml.WorkerScript.
    set(files ${QT_INSTALL_PLUGINS}/sqldrivers/libqsqlite.so ${QT_INSTALL_QML}/QtQml/WorkerScript/qmldir)
    string(JSON count ERROR_VARIABLE json_error LENGTH "${imports}")
    if(json_error)
        message(WARNING "qmlimportscanner gave no import list: ${json_error}")
        set(count 0)
    endif()
    if(count GREATER 0)
        math(EXPR last "${count} - 1")
        foreach(i RANGE ${last})
            string(JSON type ERROR_VARIABLE no_type GET "${imports}" ${i} type)
            string(JSON name ERROR_VARIABLE no_name GET "${imports}" ${i} name)
            string(JSON path ERROR_VARIABLE no_path GET "${imports}" ${i} path)
            if(NOT type STREQUAL "module")
                continue()
            endif()
            if(no_path OR NOT EXISTS "${path}/qmldir")
                if(NOT name MATCHES "^(Platterbox|QtQml)$")
                    message(STATUS "QML module ${name} is not installed here: not among the package's dependencies")
                endif()
                continue()
            endif()
            list(APPEND files "${path}/qmldir")
        endforeach()
    endif()

    execute_process(COMMAND ${PB_DPKG_QUERY} -S ${files} OUTPUT_VARIABLE owners ERROR_QUIET)
    string(REPLACE "\n" ";" owners "${owners}")
    set(packages)
    foreach(line IN LISTS owners)
        # "qml6-module-qtquick:amd64: /usr/lib/.../qmldir"
        if(line MATCHES "^([^:,]+)(:[a-z0-9]+)?: ")
            list(APPEND packages ${CMAKE_MATCH_1})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES packages)
    list(SORT packages)
    set(${out} ${packages} PARENT_SCOPE)
endfunction()
