import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// Leads to the record-condition and cover-condition lists.
ScreenPage {
    id: root

    title: qsTr("Reference Lists")

    ReferenceListsViewController {
        id: controller
    }

    ColumnLayout {
        width: Math.min(parent.width - 48, 520)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.topMargin: 24
        spacing: 16

        Label {
            text: qsTr("The grades offered when you describe a record's condition and its cover's condition.")
            wrapMode: Text.Wrap
            font.pixelSize: 15
            color: Theme.secondaryText
            Layout.fillWidth: true
        }
        StyledButton {
            objectName: "VinylConditionButton"
            text: qsTr("Vinyl Condition")
            enabled: controller.conditionListsAvailable
            Layout.fillWidth: true
            onClicked: controller.VinylConditionButtonClicked()
        }
        StyledButton {
            objectName: "CoverConditionButton"
            text: qsTr("Cover Condition")
            enabled: controller.conditionListsAvailable
            Layout.fillWidth: true
            onClicked: controller.CoverConditionButtonClicked()
        }
    }
}
