list(APPEND PB_SOURCES
    app/appshell.h app/appshell.cpp
    app/windowgeometry.h app/windowgeometry.cpp
)
# The width breakpoints and the measures that follow from them, for every screen.
set_source_files_properties(app/Adaptive.qml PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
list(APPEND PB_QML
    app/Main.qml
    app/Adaptive.qml
    app/ScreenPage.qml
    app/AlertDialog.qml
    app/StyledButton.qml
    app/ToolbarButton.qml
    app/ButtonShortcut.qml
    app/Card.qml
    app/CardGrid.qml
    app/SwipeRow.qml
    app/SearchField.qml
    app/WheelScroller.qml
    app/DatePickerPanel.qml
    app/ProgressPanel.qml
)
