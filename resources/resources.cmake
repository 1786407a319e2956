# Pictures and documents the app carries, under qrc:/resources/.
qt_add_resources(platterbox_core "platterbox_resources"
    PREFIX /
    BASE ${CMAKE_CURRENT_LIST_DIR}/..
    FILES
        ${CMAKE_CURRENT_LIST_DIR}/black-vinyl-record.png
)
