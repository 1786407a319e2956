# The store and what lives beside it: entities, schema steps, backups, snapshots, value history,
# settings, formatters, record numbers, text files, logging, the version, the sample collection and the data folder.
list(APPEND PB_CORE_SOURCES
    store/appconfig.h
    store/backgroundjob.h store/backgroundjob.cpp
    store/backup.h store/backup.cpp
    store/collectiontotals.h store/collectiontotals.cpp
    store/coverchanges.h store/coverchanges.cpp
    store/currentrecord.h
    store/datafolder.h store/datafolder.cpp
    store/entities.h
    store/fetchrequest.h
    store/firstlaunch.h store/firstlaunch.cpp
    store/formatters.h store/formatters.cpp
    store/keptfigures.h store/keptfigures.cpp
    store/logging.h store/logging.cpp
    store/recordcaptions.h store/recordcaptions.cpp
    store/recordnumbers.h store/recordnumbers.cpp
    store/result.h
    store/samplecollection.h store/samplecollection.cpp
    store/settings.h store/settings.cpp
    store/snapshots.h store/snapshots.cpp
    store/store.h store/store.cpp
    store/storedvalue.h
    store/textfile.h store/textfile.cpp
    store/translations.h store/translations.cpp
    store/valuehistory.h store/valuehistory.cpp
    store/version.h store/version.cpp
    store/wantedalbums.h store/wantedalbums.cpp
)
