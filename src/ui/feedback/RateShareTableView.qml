pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// Rate the app, share it, visit its website or write to its maker.
ScreenPage {
    id: root

    title: qsTr("Rate & Share")

    RateShareTableViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    ListView {
        objectName: "RateShareTable"
        width: Adaptive.centred(parent.width, Adaptive.narrowFormWidth, 0)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.topMargin: 12
        model: controller.rowTitles
        spacing: 4

        delegate: ItemDelegate {
            id: row
            required property string modelData
            required property int index
            width: ListView.view.width
            height: 60
            leftPadding: 24
            text: modelData
            font.pixelSize: 17
            onClicked: controller.rowSelected(index)
            FocusRing { control: row; gap: -2 }

            background: Item {
                Card {
                    anchors.fill: parent
                    anchors.leftMargin: 12
                    anchors.rightMargin: 12
                    hovered: row.hovered
                }
            }
        }
    }
}
