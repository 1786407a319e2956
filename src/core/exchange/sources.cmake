# The exchange file, collection CSV and Discogs CSV: read, preview, merge, write.
list(APPEND PB_CORE_SOURCES
    exchange/collectioncsv.h exchange/collectioncsv.cpp
    exchange/csv.h exchange/csv.cpp
    exchange/discogscsv.h exchange/discogscsv.cpp
    exchange/exchangeformat.h exchange/exchangeformat.cpp
    exchange/exchangereader.h exchange/exchangereader.cpp
    exchange/exchangewriter.h exchange/exchangewriter.cpp
    exchange/fileattributes.h exchange/fileattributes.cpp
    exchange/importfile.h exchange/importfile.cpp
    exchange/importmerge.h exchange/importmerge.cpp
    exchange/wantlistcsv.h exchange/wantlistcsv.cpp
)
