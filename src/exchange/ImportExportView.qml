import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// Leads to the export and import screens.
ScreenPage {
    id: root

    title: "Import / Export"

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 24
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
