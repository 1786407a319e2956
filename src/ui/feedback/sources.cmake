# Rate and share, and the review prompt.
list(APPEND PB_UI_SOURCES
    feedback/ratesharetableviewcontroller.h feedback/ratesharetableviewcontroller.cpp
    feedback/reviewservice.h feedback/reviewservice.cpp
)
list(APPEND PB_UI_QML
    feedback/RateShareTableView.qml
)
