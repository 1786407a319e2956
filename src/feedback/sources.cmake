# Files of this folder, relative to src/.
list(APPEND PB_SOURCES
    feedback/reviewservice.h feedback/reviewservice.cpp
    feedback/ratesharetableviewcontroller.h feedback/ratesharetableviewcontroller.cpp
)
list(APPEND PB_QML
    feedback/RateShareTableView.qml
)
