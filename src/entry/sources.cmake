# Files of this folder, relative to src/.
list(APPEND PB_SOURCES
    entry/recordform.h entry/recordform.cpp
    entry/recordformcontroller.h entry/recordformcontroller.cpp
    entry/addvinylviewcontroller.h entry/addvinylviewcontroller.cpp
    entry/editvinylviewcontroller.h entry/editvinylviewcontroller.cpp
    entry/notesviewcontroller.h entry/notesviewcontroller.cpp
    entry/zoomviewcontroller.h entry/zoomviewcontroller.cpp
)
list(APPEND PB_QML
    entry/RecordFormField.qml
    entry/RecordFormPanel.qml
    entry/RecordCameraPage.qml
    entry/AddVinylView.qml
    entry/EditVinylView.qml
    entry/NotesView.qml
    entry/ZoomView.qml
)
