import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// Leads to the export and import screens.
ScreenPage {
    id: root

    title: "Import / Export"

    ColumnLayout {
        width: Adaptive.centred(parent.width, 520, 24)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.topMargin: 24
        spacing: 16

        Label {
            text: "Move the whole collection to and from an exchange file."
            wrapMode: Text.Wrap
            font.pixelSize: 15
            color: "#555555"
            Layout.fillWidth: true
        }
        StyledButton {
            objectName: "ExportButton"
            text: "Export"
            Layout.fillWidth: true
            onClicked: AppDelegate.navigator.show("ExportView")
        }
        StyledButton {
            objectName: "ImportButton"
            text: "Import"
            Layout.fillWidth: true
            onClicked: AppDelegate.navigator.show("ImportView")
        }
    }
}
