# Files of this folder, relative to src/. Every chart is drawn by the components in charts/.
list(APPEND PB_SOURCES
    stats/statistics.h stats/statistics.cpp
    stats/statisticsviewcontroller.h stats/statisticsviewcontroller.cpp
)
list(APPEND PB_QML
    stats/StatisticsView.qml
    stats/ValueHistoryPanel.qml
    stats/charts/ChartCard.qml
    stats/charts/Chart.qml
    stats/charts/BarChart.qml
    stats/charts/PieChart.qml
    stats/charts/LineChart.qml
    stats/charts/ValueScale.qml
)
