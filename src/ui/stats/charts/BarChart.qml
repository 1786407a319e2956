import QtQuick
import QtCharts
import Platterbox

// Bars of one series: upright columns, or horizontal bars (first entry on top) for long
// names. tapped(index) gives the entry's index in labels.
Item {
    id: root

    property var labels: []
    property var values: []
    property bool horizontal: false
    property color color: Theme.chartCount

    signal tapped(int index)

    // Counts step by whole numbers, amounts by round ones.
    property bool whole: true

    ValueScale {
        id: valueScale
        whole: root.whole
        top: Math.max(0, ...root.values)
    }

    Loader {
        anchors.fill: parent
        sourceComponent: root.horizontal ? barsComponent : columnsComponent
    }

    Component {
        id: columnsComponent
        ChartView {
            antialiasing: true
            legend.visible: false
            backgroundColor: Theme.noFill
            margins { top: 0; bottom: 0; left: 0; right: 0 }
            BarSeries {
                labelsVisible: true
                labelsPosition: AbstractBarSeries.LabelsOutsideEnd
                axisX: BarCategoryAxis {
                    categories: root.labels
                    truncateLabels: false
                    labelsFont.pixelSize: 10
                    labelsColor: Theme.chartLabel
                    gridLineColor: Theme.chartGrid
                    color: Theme.chartAxis
                    labelsAngle: root.labels.length > 10 ? -45 : 0
                }
                axisY: ValueAxis {
                    min: 0
                    max: valueScale.max
                    tickType: ValueAxis.TicksDynamic
                    tickAnchor: 0
                    tickInterval: valueScale.step
                    labelFormat: "%.0f"
                    labelsFont.pixelSize: 10
                    labelsColor: Theme.chartLabel
                    gridLineColor: Theme.chartGrid
                    color: Theme.chartAxis
                }
                BarSet {
                    values: root.values
                    color: root.color
                    borderColor: root.color
                    labelColor: Theme.chartLabel
                }
                onClicked: (index, barset) => root.tapped(index)
            }
        }
    }

    Component {
        id: barsComponent
        ChartView {
            antialiasing: true
            legend.visible: false
            backgroundColor: Theme.noFill
            margins { top: 0; bottom: 0; left: 0; right: 0 }
            // Horizontal bars are drawn from the bottom up; the entries are turned over so the
            // first one is on top.
            HorizontalBarSeries {
                labelsVisible: true
                labelsPosition: AbstractBarSeries.LabelsOutsideEnd
                axisY: BarCategoryAxis {
                    categories: root.labels.slice().reverse()
                    labelsFont.pixelSize: 10
                    labelsColor: Theme.chartLabel
                    gridLineColor: Theme.chartGrid
                    color: Theme.chartAxis
                }
                axisX: ValueAxis {
                    min: 0
                    max: valueScale.max
                    tickType: ValueAxis.TicksDynamic
                    tickAnchor: 0
                    tickInterval: valueScale.step
                    labelFormat: "%.0f"
                    labelsFont.pixelSize: 10
                    labelsColor: Theme.chartLabel
                    gridLineColor: Theme.chartGrid
                    color: Theme.chartAxis
                }
                BarSet {
                    values: root.values.slice().reverse()
                    color: root.color
                    borderColor: root.color
                    labelColor: Theme.chartLabel
                }
                onClicked: (index, barset) => root.tapped(root.values.length - 1 - index)
            }
        }
    }
}
