list(APPEND PB_SOURCES
    app/appshell.h app/appshell.cpp
)
list(APPEND PB_QML
    app/Main.qml
    app/ScreenPage.qml
    app/AlertDialog.qml
    app/StyledButton.qml
    app/Card.qml
    app/DatePickerPanel.qml
    app/ProgressPanel.qml
)
