# Report content, its pages and PDF files.
list(APPEND PB_CORE_SOURCES
    reports/coverpictures.h reports/coverpictures.cpp
    reports/filteredlistpdf.h reports/filteredlistpdf.cpp
    reports/reportbuilder.h reports/reportbuilder.cpp
    reports/reportpages.h reports/reportpages.cpp
    reports/reportpdf.h reports/reportpdf.cpp
    reports/reporttexts.h
)
