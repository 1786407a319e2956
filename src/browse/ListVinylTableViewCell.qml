pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// A record card: the front cover and five text lines; swiping left offers "delete".
SwipeDelegate {
    id: root

    required property string nameLabel
    required property string releaseDateLabel
    required property string producerLabel
    required property string costLabel
    required property string speedLabel
    required property string coverSource

    signal picked()
    signal deleteRequested()

    height: 120
    topPadding: 14
    bottomPadding: 14
    leftPadding: 16
    rightPadding: 14

    onClicked: picked()
    // A recycled card starts closed.
    ListView.onPooled: swipe.close()

    // Inset by hand: the card is the moving part of the swipe.
    background: Item {
        Card {
            anchors.fill: parent
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            anchors.topMargin: 4
            anchors.bottomMargin: 4
            border.width: 2
            border.color: "black"
        }
    }

    contentItem: RowLayout {
        spacing: 10

        Image {
            objectName: "FrontCoverImage"
            source: root.coverSource
            sourceSize: Qt.size(100, 100)
            fillMode: Image.PreserveAspectFit
            asynchronous: true
            cache: false
            Layout.preferredWidth: 86
            Layout.preferredHeight: 86
            Layout.alignment: Qt.AlignVCenter
        }
        ColumnLayout {
            spacing: 1
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter

            // Long lines shrink a little before they are cut.
            component CardLine: Label {
                font.pixelSize: 12
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 10
                color: "black"
                elide: Text.ElideRight
                visible: text.length > 0
                Layout.fillWidth: true
            }

            CardLine { objectName: "NameLabel"; text: root.nameLabel; font.bold: true }
            CardLine { objectName: "ReleaseDateLabel"; text: root.releaseDateLabel }
            CardLine { objectName: "ProducerLabel"; text: root.producerLabel }
            CardLine { objectName: "CostLabel"; text: root.costLabel }
            CardLine { objectName: "SpeedLabel"; text: root.speedLabel }
        }
    }

    swipe.right: Rectangle {
        width: 96
        height: root.height - 8
        y: 4
        anchors.right: parent.right
        anchors.rightMargin: 8
        radius: 10
        color: "#e0302a"

        Label {
            anchors.centerIn: parent
            text: "delete"
            color: "white"
            font.pixelSize: 16
        }
        TapHandler {
            onTapped: {
                root.swipe.close()
                root.deleteRequested()
            }
        }
    }
}
