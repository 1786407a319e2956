pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// A record card: the front cover, five text lines and, on the cover of a record lent out, a
// band that says so (who has it when pointed at); swiping left offers "delete".
SwipeRow {
    id: root

    required property string nameLabel
    required property string releaseDateLabel
    required property string producerLabel
    required property string costLabel
    required property string speedLabel
    required property string coverSource
    required property string loanLabel
    required property string loanBadge
    required property bool loanOverdue
    required property string accessibleLabel

    signal picked()

    topPadding: 8
    bottomPadding: 8
    leftPadding: 16
    rightPadding: 14
    insetX: 8
    insetY: 4

    itemName: nameLabel
    Accessible.name: accessibleLabel
    onClicked: picked()

    // Inset by hand: the card is the moving part of the swipe.
    background: Item {
        Card {
            anchors.fill: parent
            anchors.leftMargin: root.insetX
            anchors.rightMargin: root.insetX
            anchors.topMargin: root.insetY
            anchors.bottomMargin: root.insetY
            hovered: root.hovered
        }
    }

    contentItem: RowLayout {
        spacing: 10

        Image {
            objectName: "FrontCoverImage"
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("Front cover of %1").arg(root.nameLabel)
            source: root.coverSource
            sourceSize: Qt.size(100, 100)
            fillMode: Image.PreserveAspectFit
            asynchronous: true
            cache: false
            Layout.preferredWidth: 86
            Layout.preferredHeight: 86
            Layout.alignment: Qt.AlignVCenter

            Rectangle {
                objectName: "LoanBadge"
                visible: root.loanBadge !== ""
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                height: badgeText.implicitHeight + 4
                color: root.loanOverdue ? Theme.overdueBand : Theme.loanBand
                opacity: 0.92
                Label {
                    id: badgeText
                    anchors.centerIn: parent
                    text: root.loanBadge
                    color: Theme.onBand
                    font.pixelSize: 11
                    font.bold: true
                }
                HoverHandler { id: badgeHover }
                ToolTip.text: root.loanLabel
                ToolTip.visible: badgeHover.hovered
                Accessible.name: root.loanLabel
            }
        }
        ColumnLayout {
            spacing: 1
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter

            // A long line goes on in a second line rather than being cut.
            component CardLine: Label {
                Accessible.ignored: true
                font.pixelSize: 12
                color: Theme.text
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                visible: text.length > 0
                Layout.fillWidth: true
            }

            // Album and artist together may take a third line in a phone's narrowest card.
            CardLine { objectName: "NameLabel"; text: root.nameLabel; font.bold: true; maximumLineCount: 3 }
            CardLine { objectName: "ReleaseDateLabel"; text: root.releaseDateLabel }
            CardLine { objectName: "ProducerLabel"; text: root.producerLabel }
            CardLine { objectName: "CostLabel"; text: root.costLabel }
            CardLine { objectName: "SpeedLabel"; text: root.speedLabel }
        }
    }
}
