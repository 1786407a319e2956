# Files of this folder, relative to src/.
list(APPEND PB_SOURCES
    valuation/valuation.h valuation/valuation.cpp
    valuation/valuationrowmodel.h valuation/valuationrowmodel.cpp
    valuation/valuationviewcontroller.h valuation/valuationviewcontroller.cpp
)
list(APPEND PB_QML
    valuation/ValuationView.qml
    valuation/ValuationTableViewCell.qml
)
