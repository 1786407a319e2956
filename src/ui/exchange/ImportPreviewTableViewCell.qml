pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// One line of a previewed import: what it does (new, updated, unchanged, problem), where it is
// in the file, the record or track it names, and the fields it changes or why it is skipped.
ItemDelegate {
    id: root

    required property int kind
    required property string kindLabel
    required property string lineLabel
    required property string titleLabel
    required property string detailLabel
    required property string accessibleLabel

    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleLabel
    FocusRing { control: root; gap: -3 }

    // New, updated, unchanged, problem.
    readonly property var kindColors: [Theme.success, Theme.info, Theme.secondaryText, Theme.danger]

    topPadding: 10
    bottomPadding: 10
    leftPadding: 22
    rightPadding: 22

    background: Item {
        Card {
            anchors.fill: parent
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            anchors.topMargin: 3
            anchors.bottomMargin: 3
            border.width: 1
            border.color: root.kindColors[root.kind]
        }
    }

    contentItem: ColumnLayout {
        spacing: 2

        RowLayout {
            spacing: 8
            Layout.fillWidth: true
            Label {
                objectName: "KindLabel"
                Accessible.ignored: true
                text: root.kindLabel
                color: root.kindColors[root.kind]
                font.pixelSize: 13
                font.bold: true
            }
            Label {
                objectName: "TitleLabel"
                Accessible.ignored: true
                text: root.titleLabel
                font.pixelSize: 15
                wrapMode: Text.Wrap
                Layout.fillWidth: true
            }
            Label {
                objectName: "LineLabel"
                Accessible.ignored: true
                text: root.lineLabel
                font.pixelSize: 12
                color: Theme.secondaryText
            }
        }
        Label {
            objectName: "DetailLabel"
            Accessible.ignored: true
            text: root.detailLabel
            visible: text.length > 0
            font.pixelSize: 13
            color: Theme.text
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }
    }
}
