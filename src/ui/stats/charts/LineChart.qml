import QtQuick
import QtCharts
import Platterbox

// A line over time: points are [{x: milliseconds since the epoch, y: value}], oldest first.
Item {
    id: root

    property var points: []
    property color color: Theme.chartLine

    ValueScale {
        id: valueScale
    }

    onPointsChanged: fill()
    Component.onCompleted: fill()

    // The chart has no bindable list of points; it is filled again whenever the points change.
    function fill() {
        line.clear()
        let top = 0
        for (const p of points) {
            line.append(p.x, p.y)
            top = Math.max(top, p.y)
        }
        valueScale.top = top
        if (points.length > 0) {
            // A single day still gets a span to be drawn in.
            const first = points[0].x, last = points[points.length - 1].x
            timeAxis.min = new Date(first)
            timeAxis.max = new Date(last > first ? last : first + 86400000)
        }
    }

    ChartView {
        anchors.fill: parent
        antialiasing: true
        legend.visible: false
        backgroundColor: Theme.noFill
        margins { top: 0; bottom: 0; left: 0; right: 0 }
        LineSeries {
            id: line
            color: root.color
            width: 2
            pointsVisible: root.points.length < 40
            axisX: DateTimeAxis {
                id: timeAxis
                format: "MMM yyyy"
                tickCount: 4
                labelsFont.pixelSize: 10
                labelsColor: Theme.chartLabel
                gridLineColor: Theme.chartGrid
                color: Theme.chartAxis
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
        }
    }
}
