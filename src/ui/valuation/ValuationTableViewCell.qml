import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// One record of the valuation table: its front cover and five lines; the picked row is tinted.
ItemDelegate {
    id: root

    required property string label1
    required property string label2
    required property string label3
    required property string label4
    required property string label5
    required property string coverSource
    required property string accessibleLabel
    property bool selected: false

    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleLabel
    FocusRing { control: root; gap: -4 }

    topPadding: 10
    bottomPadding: 10
    leftPadding: 16
    rightPadding: 14

    background: Item {
        Card {
            anchors.fill: parent
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            anchors.topMargin: 4
            anchors.bottomMargin: 4
            border.color: root.selected ? Theme.selectedCardBorder : Theme.cardBorder
            fillColor: root.selected ? Theme.selectedCard : Theme.card
            hovered: root.hovered
        }
    }

    contentItem: RowLayout {
        spacing: 10

        Image {
            objectName: "FrontImage"
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("Front cover of %1").arg(root.label1)
            source: root.coverSource
            sourceSize: Qt.size(100, 100)
            fillMode: Image.PreserveAspectFit
            asynchronous: true
            cache: false
            Layout.preferredWidth: 80
            Layout.preferredHeight: 80
            Layout.alignment: Qt.AlignVCenter
        }
        ColumnLayout {
            spacing: 1
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter

            component CellLine: Label {
                Accessible.ignored: true
                font.pixelSize: 12
                color: Theme.text
                elide: Text.ElideRight
                Layout.fillWidth: true
            }

            CellLine { objectName: "Label1"; text: root.label1; font.bold: true }
            CellLine { objectName: "Label2"; text: root.label2 }
            CellLine { objectName: "Label3"; text: root.label3 }
            CellLine { objectName: "Label4"; text: root.label4 }
            CellLine { objectName: "Label5"; text: root.label5 }
        }
    }
}
