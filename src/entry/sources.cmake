# Files of this folder, relative to src/.
list(APPEND PB_SOURCES
    entry/recordform.h entry/recordform.cpp
    entry/recordformcontroller.h entry/recordformcontroller.cpp
    entry/addvinylviewcontroller.h entry/addvinylviewcontroller.cpp
    entry/editvinylviewcontroller.h entry/editvinylviewcontroller.cpp
    entry/notesviewcontroller.h entry/notesviewcontroller.cpp
    entry/zoomviewcontroller.h entry/zoomviewcontroller.cpp
    entry/tracks.h entry/tracks.cpp
    entry/trackslistmodel.h entry/trackslistmodel.cpp
    entry/trackscontrollers.h entry/trackscontrollers.cpp
    entry/conditionlists.h entry/conditionlists.cpp
    entry/conditionlistmodel.h entry/conditionlistmodel.cpp
    entry/conditioncontrollers.h entry/conditioncontrollers.cpp
)
list(APPEND PB_QML
    entry/RecordFormField.qml
    entry/RecordFormPanel.qml
    entry/RecordCameraPage.qml
    entry/AddVinylView.qml
    entry/EditVinylView.qml
    entry/NotesView.qml
    entry/ZoomView.qml
    entry/TracksTableView.qml entry/TracksTableViewCell.qml entry/TracksFormScreen.qml
    entry/AddTracksView.qml entry/EditTracksView.qml
    entry/ConditionTableScreen.qml entry/ConditionFormScreen.qml
    entry/VinylConditionTableView.qml entry/AddVinylConditionView.qml entry/EditVinylConditionView.qml
    entry/CoverConditionTableView.qml entry/AddCoverConditionView.qml entry/EditCoverConditionView.qml
)
