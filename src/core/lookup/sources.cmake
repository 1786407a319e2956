# Reading the product code on a sleeve, from a photo or a camera frame.
list(APPEND PB_CORE_SOURCES
    lookup/barcodereader.h lookup/barcodereader.cpp
    lookup/lookuprecord.h lookup/lookuprecord.cpp
)
