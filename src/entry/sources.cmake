# Files of this folder, relative to src/.
list(APPEND PB_SOURCES)
list(APPEND PB_QML)

# Tracks and condition lists
list(APPEND PB_SOURCES
    entry/tracks.h entry/tracks.cpp
    entry/trackscontrollers.h entry/trackscontrollers.cpp
    entry/conditionlists.h entry/conditionlists.cpp
    entry/conditioncontrollers.h entry/conditioncontrollers.cpp
)
list(APPEND PB_QML
    entry/TracksTableView.qml entry/TracksTableViewCell.qml entry/TracksFormScreen.qml
    entry/AddTracksView.qml entry/EditTracksView.qml
    entry/ConditionTableScreen.qml entry/ConditionFormScreen.qml
    entry/VinylConditionTableView.qml entry/AddVinylConditionView.qml entry/EditVinylConditionView.qml
    entry/CoverConditionTableView.qml entry/AddCoverConditionView.qml entry/EditCoverConditionView.qml
)
