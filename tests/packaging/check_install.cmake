# Installs the build into PREFIX and checks what a desktop needs to find: the two commands,
# the desktop entry with the command and icon it names, the metainfo naming the desktop entry
# and this version as its newest release, and the manual page.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX}
                RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed: ${result}")
endif()

set(id org.platterbox.Platterbox)
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
