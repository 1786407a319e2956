import QtQuick
import QtQuick.Controls
import Platterbox

// One chart in the look it asks for: "columns", "bars" (horizontal, for names), "pie" or
// "line" (points over time). The screens draw every chart through this item.
Item {
    id: root

    property string look: "columns"
    property var labels: []
    property var values: []
    // For "line": [{x: milliseconds since the epoch, y: value}], oldest first.
    property var points: []
    property color color: Theme.chartCount
    // The values are amounts rather than counts.
    property bool currency: false

    signal tapped(int index)

    readonly property bool empty: look === "line" ? points.length === 0 : values.length === 0

    Label {
        anchors.centerIn: parent
        visible: root.empty
        text: qsTr("Nothing to show yet")
        color: Theme.captionText
    }

    Loader {
        anchors.fill: parent
        active: !root.empty
        sourceComponent: root.look === "line" ? lineChart : root.look === "pie" ? pieChart : barChart
    }

    Component {
        id: barChart
        BarChart {
            labels: root.labels
            values: root.values
            horizontal: root.look === "bars"
            whole: !root.currency
            color: root.color
            onTapped: (index) => root.tapped(index)
        }
    }
    Component {
        id: pieChart
        PieChart {
            labels: root.labels
            values: root.values
            onTapped: (index) => root.tapped(index)
        }
    }
    Component {
        id: lineChart
        LineChart {
            points: root.points
            color: root.color
        }
    }
}
