pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// A record's value history under its value field: the quotes, newest first, with their date
// and where they came from, and a line of the value over time once there are two.
ColumnLayout {
    id: root

    // [{dateText, valueText, source}], newest first.
    property var rows: []
    // [{x: milliseconds since the epoch, y: value}], oldest first.
    property var points: []

    spacing: 2

    Label {
        text: qsTr("Value History")
        color: Theme.secondaryText
        font.pixelSize: 13
    }
    Label {
        visible: root.rows.length === 0
        text: qsTr("No value kept yet")
        color: Theme.captionText
        font.pixelSize: 14
    }
    Repeater {
        model: root.rows
        delegate: RowLayout {
            id: row
            required property var modelData
            required property int index
            objectName: "ValueHistoryRow" + index
            Layout.fillWidth: true
            spacing: 8
            Label {
                text: row.modelData.dateText
                font.pixelSize: 14
                Layout.preferredWidth: 110
            }
            Label {
                text: row.modelData.valueText
                font.pixelSize: 14
                font.bold: true
                horizontalAlignment: Text.AlignRight
                Layout.preferredWidth: 90
            }
            Label {
                text: row.modelData.source
                color: Theme.secondaryText
                font.pixelSize: 14
                Layout.fillWidth: true
            }
        }
    }
    Chart {
        objectName: "ValueHistoryChart"
        visible: root.points.length >= 2
        look: "line"
        color: Theme.chartLine
        points: visible ? root.points : []
        Layout.fillWidth: true
        Layout.preferredHeight: 160
    }
}
