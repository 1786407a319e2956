pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Platterbox

// Beside the menu on a wide window: the collection's figures and the records added last,
// each of which opens in the editor. Positioners rather than layouts hold the repeated
// tiles and rows: a layout meets delegates already gone while the window is taken down.
Column {
    id: root

    required property MainMenuViewController controller

    spacing: 10

    Label {
        text: qsTr("Your Collection")
        font.pixelSize: 20
        font.bold: true
        Accessible.role: Accessible.Heading
    }

    Grid {
        objectName: "GlanceFigures"
        columns: 2
        spacing: 10
        width: root.width

        Repeater {
            model: root.controller.figures
            delegate: Card {
                id: tile
                required property var modelData
                width: (root.width - 10) / 2
                height: tileText.implicitHeight + 20
                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.label + ": " + modelData.value

                Column {
                    id: tileText
                    x: 10
                    y: 10
                    width: parent.width - 20
                    spacing: 2
                    Label {
                        text: tile.modelData.value
                        font.pixelSize: 22
                        font.bold: true
                        wrapMode: Text.Wrap
                        width: parent.width
                    }
                    Label {
                        text: tile.modelData.label
                        font.pixelSize: 13
                        color: Theme.secondaryText
                        wrapMode: Text.Wrap
                        width: parent.width
                    }
                }
            }
        }
    }

    Label {
        text: qsTr("Added Last")
        font.pixelSize: 17
        font.bold: true
        topPadding: 8
        Accessible.role: Accessible.Heading
    }
    Label {
        visible: root.controller.recentRecords.length === 0
        text: qsTr("Records you add show here.")
        color: Theme.secondaryText
    }
    Repeater {
        model: root.controller.recentRecords
        delegate: ItemDelegate {
            id: row
            required property var modelData
            required property int index
            objectName: "RecentRecord" + index
            width: root.width
            padding: 6
            Accessible.name: qsTr("%1 by %2").arg(modelData.album).arg(modelData.artist)
            onClicked: root.controller.openRecent(index)

            background: Card { hovered: row.hovered || row.visualFocus }
            contentItem: Row {
                spacing: 10
                Image {
                    source: row.modelData.coverSource
                    sourceSize: Qt.size(48, 48)
                    fillMode: Image.PreserveAspectFit
                    asynchronous: true
                    width: 48
                    height: 48
                    Accessible.ignored: true
                }
                Column {
                    width: row.availableWidth - 58
                    anchors.verticalCenter: parent.verticalCenter
                    Label {
                        text: row.modelData.album
                        font.bold: true
                        wrapMode: Text.Wrap
                        width: parent.width
                    }
                    Label {
                        text: row.modelData.artist
                        color: Theme.secondaryText
                        wrapMode: Text.Wrap
                        width: parent.width
                    }
                }
            }
        }
    }
}
