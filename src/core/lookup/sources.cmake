# The catalogue look-up: the MusicBrainz and Cover Art Archive client and the reading of their answers.
list(APPEND PB_CORE_SOURCES
    lookup/lookupanswers.h lookup/lookupanswers.cpp
    lookup/lookupclient.h lookup/lookupclient.cpp
    lookup/lookuptexts.h
)
