# Files of this folder, relative to src/.
list(APPEND PB_SOURCES
    reports/reporttexts.h
    reports/coverpictures.h reports/coverpictures.cpp
    reports/reportbuilder.h reports/reportbuilder.cpp
    reports/reportpages.h reports/reportpages.cpp
    reports/reportpdf.h reports/reportpdf.cpp
    reports/reportpageprovider.h reports/reportpageprovider.cpp
    reports/filteredlistpdf.h reports/filteredlistpdf.cpp
    reports/printvinylviewcontroller.h reports/printvinylviewcontroller.cpp
    reports/overviewviewcontroller.h reports/overviewviewcontroller.cpp
)
list(APPEND PB_QML
    reports/PrintVinylView.qml
    reports/OverviewView.qml
)
