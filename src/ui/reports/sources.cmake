# The printed report and the overview guide.
list(APPEND PB_UI_SOURCES
    reports/overviewviewcontroller.h reports/overviewviewcontroller.cpp
    reports/printvinylviewcontroller.h reports/printvinylviewcontroller.cpp
    reports/reportpageprovider.h reports/reportpageprovider.cpp
)
list(APPEND PB_UI_QML
    reports/OverviewView.qml
    reports/PrintVinylView.qml
)
