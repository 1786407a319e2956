import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// A group row: the group's name (or year) and how many records it holds.
ItemDelegate {
    id: root

    required property string nameLabel
    required property string countLabel
    required property string accessibleLabel
    property string nameObjectName: "NameLabel"

    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleLabel
    FocusRing { control: root; gap: -4 }

    topPadding: 0
    bottomPadding: 0

    // The card sits inside a small margin of the row.
    background: Item {
        Card {
            anchors.fill: parent
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            anchors.topMargin: 4
            anchors.bottomMargin: 4
            hovered: root.hovered
        }
    }

    leftPadding: 22
    rightPadding: 22

    contentItem: RowLayout {
        spacing: 10

        Label {
            Accessible.ignored: true
            objectName: root.nameObjectName
            text: root.nameLabel
            color: Theme.text
            font.pixelSize: 16
            elide: Text.ElideRight
            Layout.fillWidth: true
        }
        Label {
            Accessible.ignored: true
            objectName: "CountLabel"
            text: root.countLabel
            color: Theme.text
            font.pixelSize: 16
            font.bold: true
        }
    }
}
