# What the screens carry under qrc:/resources/ and qrc:/packaging/: the window's icon and the
# overview guide (the missing-cover picture is core's: see src/core/CMakeLists.txt).
qt_add_resources(platterbox_ui "platterbox_icon"
    PREFIX /
    BASE ${CMAKE_CURRENT_LIST_DIR}/..
    FILES ${CMAKE_CURRENT_LIST_DIR}/../packaging/icons/org.platterbox.Platterbox-256.png
)

# The overview guide is rendered from its HTML source at build time, so it follows the source.
set(PB_OVERVIEW_PDF ${CMAKE_BINARY_DIR}/generated/resources/overview.pdf)
add_custom_command(
    OUTPUT ${PB_OVERVIEW_PDF}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/generated/resources
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
            $<TARGET_FILE:platterbox-overviewpdf> ${CMAKE_CURRENT_LIST_DIR}/overview.html ${PB_OVERVIEW_PDF}
    DEPENDS platterbox-overviewpdf ${CMAKE_CURRENT_LIST_DIR}/overview.html
            ${CMAKE_CURRENT_LIST_DIR}/black-vinyl-record.png
    COMMENT "Rendering the overview guide"
    VERBATIM)
set_source_files_properties(${PB_OVERVIEW_PDF} PROPERTIES GENERATED TRUE)
qt_add_resources(platterbox_ui "platterbox_overview"
    PREFIX /
    BASE ${CMAKE_BINARY_DIR}/generated
    FILES ${PB_OVERVIEW_PDF}
)
