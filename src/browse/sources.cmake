# Files of this folder, relative to src/.
list(APPEND PB_SOURCES
    browse/browsetexts.h browse/textorder.h
    browse/recordcard.h
    browse/recordcardmodel.h browse/recordcardmodel.cpp
    browse/collectionlist.h browse/collectionlist.cpp
    browse/listvinyltableviewcontroller.h browse/listvinyltableviewcontroller.cpp
    browse/groupnames.h browse/groupnames.cpp
    browse/grouprowmodel.h browse/grouprowmodel.cpp
    browse/grouptableviewcontroller.h browse/grouptableviewcontroller.cpp
    browse/breakdown.h browse/breakdown.cpp
    browse/breakdowntableviewcontroller.h browse/breakdowntableviewcontroller.cpp
)
list(APPEND PB_QML
    browse/ListHeaderLabel.qml
    browse/ListVinylTableView.qml browse/ListVinylTableViewCell.qml browse/RecordCardGrid.qml
    browse/GroupListsView.qml browse/GroupTablePane.qml browse/GroupTableViewCell.qml
    browse/BreakdownTableScreen.qml
    browse/ArtistBreakdownTableView.qml browse/LabelBreakdownTableView.qml
    browse/ProducerBreakdownTableView.qml browse/YearBreakdownTableView.qml
)
