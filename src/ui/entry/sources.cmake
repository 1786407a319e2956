# The add, edit, notes, zoom, track and condition screens, and the camera's barcode scanner.
list(APPEND PB_UI_SOURCES
    entry/addvinylviewcontroller.h entry/addvinylviewcontroller.cpp
    entry/barcodescanner.h entry/barcodescanner.cpp
    entry/conditioncontrollers.h entry/conditioncontrollers.cpp
    entry/conditionlistmodel.h entry/conditionlistmodel.cpp
    entry/editvinylviewcontroller.h entry/editvinylviewcontroller.cpp
    entry/lookupcandidatemodel.h entry/lookupcandidatemodel.cpp
    entry/lookupsheetcontroller.h entry/lookupsheetcontroller.cpp
    entry/notesviewcontroller.h entry/notesviewcontroller.cpp
    entry/recordformcontroller.h entry/recordformcontroller.cpp
    entry/trackscontrollers.h entry/trackscontrollers.cpp
    entry/trackslistmodel.h entry/trackslistmodel.cpp
    entry/zoomviewcontroller.h entry/zoomviewcontroller.cpp
)
list(APPEND PB_UI_QML
    entry/AddCoverConditionView.qml
    entry/AddTracksView.qml
    entry/AddVinylConditionView.qml
    entry/AddVinylView.qml
    entry/ConditionFormScreen.qml
    entry/ConditionTableScreen.qml
    entry/CoverConditionTableView.qml
    entry/EditCoverConditionView.qml
    entry/EditTracksView.qml
    entry/EditVinylConditionView.qml
    entry/EditVinylView.qml
    entry/LoanPanel.qml
    entry/LookupScanPage.qml
    entry/LookupSheet.qml
    entry/NotesView.qml
    entry/RecordCameraPage.qml
    entry/RecordFormField.qml
    entry/RecordFormPanel.qml
    entry/TracksFormScreen.qml
    entry/TracksTableView.qml
    entry/TracksTableViewCell.qml
    entry/VinylConditionTableView.qml
    entry/ZoomView.qml
)
