pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// Beside the menu on a wide window: the collection's figures and the records added last,
// each of which opens in the editor.
ColumnLayout {
    id: root

    required property MainMenuViewController controller

    spacing: 10

    Label {
        text: qsTr("Your Collection")
        font.pixelSize: 20
        font.bold: true
        Accessible.role: Accessible.Heading
    }

    GridLayout {
        objectName: "GlanceFigures"
        columns: 2
        rowSpacing: 10
        columnSpacing: 10
        Layout.fillWidth: true

        Repeater {
            model: root.controller.figures
            delegate: Card {
                id: tile
                required property var modelData
                implicitHeight: tileText.implicitHeight + 20
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.label + ": " + modelData.value

                ColumnLayout {
                    id: tileText
                    anchors.fill: parent
                    anchors.margins: 10
                    spacing: 2
                    Label {
                        text: tile.modelData.value
                        font.pixelSize: 22
                        font.bold: true
                        wrapMode: Text.Wrap
                        Layout.fillWidth: true
                    }
                    Label {
                        text: tile.modelData.label
                        font.pixelSize: 13
                        color: "#555555"
                        Layout.fillWidth: true
                    }
                }
            }
        }
    }

    Label {
        text: qsTr("Added Last")
        font.pixelSize: 17
        font.bold: true
        Layout.topMargin: 8
        Accessible.role: Accessible.Heading
    }
    Label {
        visible: root.controller.recentRecords.length === 0
        text: qsTr("Records you add show here.")
        color: "#555555"
    }
    Repeater {
        model: root.controller.recentRecords
        delegate: ItemDelegate {
            id: row
            required property var modelData
            required property int index
            objectName: "RecentRecord" + index
            Layout.fillWidth: true
            padding: 6
            Accessible.name: qsTr("%1 by %2").arg(modelData.album).arg(modelData.artist)
            onClicked: root.controller.openRecent(index)

            background: Card { hovered: row.hovered || row.visualFocus }
            contentItem: RowLayout {
                spacing: 10
                Image {
                    source: row.modelData.coverSource
                    sourceSize: Qt.size(48, 48)
                    fillMode: Image.PreserveAspectFit
                    asynchronous: true
                    Layout.preferredWidth: 48
                    Layout.preferredHeight: 48
                    Accessible.ignored: true
                }
                ColumnLayout {
                    spacing: 0
                    Layout.fillWidth: true
                    Label {
                        text: row.modelData.album
                        font.bold: true
                        wrapMode: Text.Wrap
                        Layout.fillWidth: true
                    }
                    Label {
                        text: row.modelData.artist
                        color: "#555555"
                        wrapMode: Text.Wrap
                        Layout.fillWidth: true
                    }
                }
            }
        }
    }
}
