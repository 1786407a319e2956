# The collection list, the group lists and the four breakdown lists.
list(APPEND PB_UI_SOURCES
    browse/breakdowntableviewcontroller.h browse/breakdowntableviewcontroller.cpp
    browse/grouprowmodel.h browse/grouprowmodel.cpp
    browse/grouptableviewcontroller.h browse/grouptableviewcontroller.cpp
    browse/listvinyltableviewcontroller.h browse/listvinyltableviewcontroller.cpp
    browse/recordcardmodel.h browse/recordcardmodel.cpp
    browse/recordlistcontroller.h browse/recordlistcontroller.cpp
)
list(APPEND PB_UI_QML
    browse/ArtistBreakdownTableView.qml
    browse/BreakdownTableScreen.qml
    browse/GroupListsView.qml
    browse/GroupTablePane.qml
    browse/GroupTableViewCell.qml
    browse/LabelBreakdownTableView.qml
    browse/ListHeaderLabel.qml
    browse/ListVinylTableView.qml
    browse/ListVinylTableViewCell.qml
    browse/ProducerBreakdownTableView.qml
    browse/RecordCardGrid.qml
    browse/RecordTable.qml
    browse/YearBreakdownTableView.qml
)
