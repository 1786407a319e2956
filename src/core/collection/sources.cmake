# Plain rules over the stored records: list orders, searches, groups and breakdowns, valuation and
# statistics figures, and the rules of the record, track and condition forms.
list(APPEND PB_CORE_SOURCES
    collection/breakdown.h collection/breakdown.cpp
    collection/browsetexts.h
    collection/collectionlist.h collection/collectionlist.cpp
    collection/conditionlists.h collection/conditionlists.cpp
    collection/groupnames.h collection/groupnames.cpp
    collection/loans.h collection/loans.cpp
    collection/pagecache.h
    collection/recordcard.h
    collection/recordform.h collection/recordform.cpp
    collection/recordrows.h collection/recordrows.cpp
    collection/statistics.h collection/statistics.cpp
    collection/textorder.h
    collection/tracks.h collection/tracks.cpp
    collection/wantlist.h collection/wantlist.cpp
    collection/valuation.h collection/valuation.cpp
)
