import QtQuick
import QtCharts
import Platterbox

// Slices of one series, labelled with their names. tapped(index) gives the slice's index.
Item {
    id: root

    property var labels: []
    property var values: []

    signal tapped(int index)

    onLabelsChanged: fill()
    onValuesChanged: fill()
    readonly property var sliceColors: Theme.chartSeries
    onSliceColorsChanged: fill()
    Component.onCompleted: fill()

    // The chart has no bindable list of slices; it is filled again whenever the series changes.
    function fill() {
        pie.clear()
        for (let i = 0; i < Math.min(labels.length, values.length); ++i) {
            const slice = pie.append(labels[i] + " (" + values[i] + ")", values[i])
            slice.labelVisible = true
            slice.labelColor = Theme.chartLabel
            slice.color = sliceColors[i % sliceColors.length]
            slice.borderColor = Theme.window
        }
    }

    ChartView {
        anchors.fill: parent
        antialiasing: true
        legend.visible: false
        backgroundColor: Theme.noFill
        margins { top: 0; bottom: 0; left: 0; right: 0 }
        PieSeries {
            id: pie
            size: 0.6
            onClicked: (slice) => {
                for (let i = 0; i < pie.count; ++i) {
                    if (pie.at(i) === slice)
                        root.tapped(i)
                }
            }
        }
    }
}
