# The window and what every screen shares: the navigator, the screen controller, the app state,
# the main menu, defaults and reference lists, the cover image provider, platform services, and
# the colours of the window (light, dark or as the desktop).
list(APPEND PB_UI_SOURCES
    shell/appdelegate.h shell/appdelegate.cpp
    shell/appstate.h shell/appstate.cpp
    shell/coverimageprovider.h shell/coverimageprovider.cpp
    shell/defaultsviewcontroller.h shell/defaultsviewcontroller.cpp
    shell/desktopplatformservices.h shell/desktopplatformservices.cpp
    shell/mainmenuviewcontroller.h shell/mainmenuviewcontroller.cpp
    shell/navigator.h shell/navigator.cpp
    shell/platformservices.h
    shell/qmlforeign.h
    shell/recordingplatformservices.h shell/recordingplatformservices.cpp
    shell/referencelistsviewcontroller.h shell/referencelistsviewcontroller.cpp
    shell/screencontroller.h shell/screencontroller.cpp
    shell/theme.h shell/theme.cpp
)
list(APPEND PB_UI_QML
    shell/Adaptive.qml
    shell/AlertDialog.qml
    shell/ButtonShortcut.qml
    shell/Card.qml
    shell/CardGrid.qml
    shell/DatePickerPanel.qml
    shell/DefaultsView.qml
    shell/FocusRing.qml
    shell/Main.qml
    shell/MainMenuGlance.qml
    shell/MainMenuView.qml
    shell/ProgressPanel.qml
    shell/ReferenceListsView.qml
    shell/ScreenPage.qml
    shell/SearchField.qml
    shell/StyledButton.qml
    shell/SwipeRow.qml
    shell/ToolbarButton.qml
    shell/WheelScroller.qml
)
