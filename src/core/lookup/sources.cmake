# The catalogue look-up: the MusicBrainz and Cover Art Archive client, the reading of their
# answers, the record a release makes, and the product code read from a photo or a camera frame.
list(APPEND PB_CORE_SOURCES
    lookup/barcodereader.h lookup/barcodereader.cpp
    lookup/lookupanswers.h lookup/lookupanswers.cpp
    lookup/lookupclient.h lookup/lookupclient.cpp
    lookup/lookuprecord.h lookup/lookuprecord.cpp
    lookup/lookupfill.h lookup/lookupfill.cpp
    lookup/lookuptexts.h
)
