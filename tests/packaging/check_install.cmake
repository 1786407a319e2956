# Installs the build into PREFIX and checks what a desktop needs to find: the two commands,
# the desktop entry with the command and icon it names, the metainfo naming the desktop entry
# and this version as its newest release, the manual page, and an app that gives its windows
# the same desktop id and an icon of that name.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed: ${result}")
endif()

set(id ${ID})
set(expected
    bin/platterbox-app
    bin/platterbox
    share/applications/${id}.desktop
    share/metainfo/${id}.metainfo.xml
    share/icons/hicolor/scalable/apps/${id}.svg
    share/man/man1/platterbox.1.gz)
foreach(size 16 24 32 48 64 128 256)
    list(APPEND expected share/icons/hicolor/${size}x${size}/apps/${id}.png)
endforeach()
foreach(path IN LISTS expected)
    if(NOT EXISTS ${PREFIX}/${path})
        message(FATAL_ERROR "not installed: ${path}")
    endif()
endforeach()

file(STRINGS ${PREFIX}/share/applications/${id}.desktop entry)
set(named 0)
foreach(line IN LISTS entry)
    if(line MATCHES "^Exec=([^ ]+)")
        math(EXPR named "${named} + 1")
        if(NOT EXISTS ${PREFIX}/bin/${CMAKE_MATCH_1})
            message(FATAL_ERROR "the desktop entry runs ${CMAKE_MATCH_1}, which is not installed")
        endif()
    elseif(line MATCHES "^Icon=(.+)$")
        math(EXPR named "${named} + 1")
        if(NOT EXISTS ${PREFIX}/share/icons/hicolor/scalable/apps/${CMAKE_MATCH_1}.svg)
            message(FATAL_ERROR "the desktop entry shows the icon ${CMAKE_MATCH_1}, which is not installed")
        endif()
    endif()
endforeach()
if(NOT named EQUAL 2)
    message(FATAL_ERROR "the desktop entry names no command or no icon")
endif()

file(READ ${PREFIX}/share/metainfo/${id}.metainfo.xml metainfo)
if(NOT metainfo MATCHES "<launchable type=\"desktop-id\">${id}.desktop</launchable>")
    message(FATAL_ERROR "the metainfo does not launch ${id}.desktop")
endif()
if(NOT metainfo MATCHES "<release version=\"([^\"]+)\"" OR NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
    message(FATAL_ERROR "the newest release in the metainfo is '${CMAKE_MATCH_1}', the project is ${PROJECT_VERSION}")
endif()

# A window whose desktop id has no installed entry gets no name or icon in the task bar.
file(READ ${APP_MAIN} app)
string(FIND "${app}" "setDesktopFileName(u\"${id}\"_s)" at)
if(at EQUAL -1)
    message(FATAL_ERROR "the app does not set the desktop file name ${id}")
endif()
string(FIND "${app}" "QIcon(u\":/packaging/icons/${id}-256.png\"_s)" at)
if(at EQUAL -1)
    message(FATAL_ERROR "the app's window icon is not packaging/icons/${id}-256.png")
endif()
