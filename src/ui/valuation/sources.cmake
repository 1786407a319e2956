# The valuation screen.
list(APPEND PB_UI_SOURCES
    valuation/valuationrowmodel.h valuation/valuationrowmodel.cpp
    valuation/valuationviewcontroller.h valuation/valuationviewcontroller.cpp
)
list(APPEND PB_UI_QML
    valuation/ValuationTableViewCell.qml
    valuation/ValuationView.qml
)
