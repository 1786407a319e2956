# The records lent out.
list(APPEND PB_UI_SOURCES
    loans/loansviewcontroller.h loans/loansviewcontroller.cpp
)
list(APPEND PB_UI_QML
    loans/LoansView.qml
)
