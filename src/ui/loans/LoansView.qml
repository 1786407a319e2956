pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The records lent out, the longest out first, overdue ones in red; a record picked opens in
// the editor, where it is taken back.
ScreenPage {
    id: root

    title: qsTr("Loans")
    onAppeared: controller.viewWillAppear()

    LoansViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    Label {
        id: summary
        objectName: "LoansSummary"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 12
        text: controller.summary
        font.pixelSize: 15
        color: Theme.secondaryText
        wrapMode: Text.Wrap
    }

    ListView {
        id: list
        objectName: "LoansList"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: summary.bottom
        anchors.bottom: parent.bottom
        anchors.margins: 12
        spacing: 8
        clip: true
        model: controller.loans
        activeFocusOnTab: true
        keyNavigationEnabled: true
        Keys.onReturnPressed: controller.rowPicked(currentIndex)

        delegate: Card {
            id: row
            required property var modelData
            required property int index
            objectName: "LoanRow" + index
            width: list.width
            implicitHeight: lines.implicitHeight + 20
            hovered: pointer.hovered || (ListView.isCurrentItem && list.activeFocus)
            Accessible.role: Accessible.ListItem
            Accessible.name: modelData.accessibleLabel
            Accessible.onPressAction: controller.rowPicked(row.index)
            fillColor: modelData.overdue ? Theme.dangerFill : Theme.card

            HoverHandler {
                id: pointer
            }
            TapHandler {
                onTapped: controller.rowPicked(row.index)
            }

            ColumnLayout {
                id: lines
                anchors.fill: parent
                anchors.margins: 10
                spacing: 2
                Label {
                    Accessible.ignored: true
                    text: row.modelData.album + (row.modelData.artist !== "" ? " \u2013 " + row.modelData.artist : "")
                    font.pixelSize: 16
                    font.bold: true
                    wrapMode: Text.Wrap
                    Layout.fillWidth: true
                }
                Label {
                    Accessible.ignored: true
                    text: row.modelData.status
                    font.pixelSize: 14
                    color: row.modelData.overdue ? Theme.danger : Theme.text
                    wrapMode: Text.Wrap
                    Layout.fillWidth: true
                }
            }
        }
    }
}
