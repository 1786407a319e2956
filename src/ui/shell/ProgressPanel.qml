import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// Long work running off the UI thread: what it is doing, a bar, how far it is
// ("12,400 of 32,767") and a Cancel button.
Rectangle {
    id: root

    property string title
    property string countText
    property real value

    signal cancelClicked()

    implicitHeight: column.implicitHeight + 16
    radius: 10
    border.width: 2
    border.color: Theme.cardBorder
    color: Theme.surface

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: 8
        spacing: 6

        RowLayout {
            Layout.fillWidth: true
            spacing: 8
            Label {
                objectName: "ProgressTitle"
                text: root.title
                font.pixelSize: 15
                elide: Label.ElideRight
                Layout.fillWidth: true
            }
            Label {
                objectName: "ProgressCount"
                text: root.countText
                font.pixelSize: 15
                font.bold: true
            }
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: 10
            ProgressBar {
                objectName: "ProgressBar"
                value: root.value
                Layout.fillWidth: true
            }
            StyledButton {
                objectName: "CancelButton"
                text: qsTr("Cancel")
                implicitHeight: 36
                font.pixelSize: 15
                onClicked: root.cancelClicked()
            }
        }
    }
}
