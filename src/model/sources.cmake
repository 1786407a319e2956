list(APPEND PB_SOURCES
    model/result.h model/entities.h model/fetchrequest.h
    model/store.h model/store.cpp
    model/datafolder.h model/datafolder.cpp
    model/coverchanges.h model/coverchanges.cpp
    model/currentrecord.h
    model/valuehistory.h model/valuehistory.cpp
    model/recordnumbers.h model/recordnumbers.cpp
    model/logging.h model/logging.cpp
    model/formatters.h model/formatters.cpp
    model/textfile.h model/textfile.cpp
    model/backup.h model/backup.cpp
    model/snapshots.h model/snapshots.cpp
    model/backgroundjob.h model/backgroundjob.cpp
    model/settings.h model/settings.cpp
    model/appstate.h model/appstate.cpp
    model/navigator.h model/navigator.cpp
    model/appconfig.h
    model/appdelegate.h model/appdelegate.cpp
    model/screencontroller.h model/screencontroller.cpp
    model/coverimageprovider.h model/coverimageprovider.cpp
    model/samplecollection.h model/samplecollection.cpp
    model/collectiontotals.h model/collectiontotals.cpp
    model/firstlaunch.h model/firstlaunch.cpp
    model/mainmenuviewcontroller.h model/mainmenuviewcontroller.cpp
    model/referencelistsviewcontroller.h model/referencelistsviewcontroller.cpp
    model/defaultsviewcontroller.h model/defaultsviewcontroller.cpp
    model/qmlforeign.h
)
list(APPEND PB_QML
    model/MainMenuView.qml
    model/ReferenceListsView.qml
    model/DefaultsView.qml
)
