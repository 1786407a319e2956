# The albums sought: the wantlist and the form of a wanted album.
list(APPEND PB_UI_SOURCES
    wantlist/wantedviewcontroller.h wantlist/wantedviewcontroller.cpp
    wantlist/wantlistviewcontroller.h wantlist/wantlistviewcontroller.cpp
)
list(APPEND PB_UI_QML
    wantlist/WantedView.qml
    wantlist/WantlistView.qml
)
