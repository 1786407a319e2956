# The statistics screen; every chart is drawn by the components in charts/.
list(APPEND PB_UI_SOURCES
    stats/statisticsviewcontroller.h stats/statisticsviewcontroller.cpp
)
list(APPEND PB_UI_QML
    stats/StatisticsView.qml
    stats/ValueHistoryPanel.qml
    stats/charts/BarChart.qml
    stats/charts/Chart.qml
    stats/charts/ChartCard.qml
    stats/charts/LineChart.qml
    stats/charts/PieChart.qml
    stats/charts/ValueScale.qml
)
