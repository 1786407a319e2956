import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The one field of the add and edit condition screens.
ScreenPage {
    id: root

    required property QtObject controller

    title: controller.title

    AlertDialog { controller: root.controller }

    actions: [
        ToolbarButton {
            objectName: "SaveButton"
            text: qsTr("Save")
            shortcut: StandardKey.Save
            onClicked: root.controller.SaveCondition()
        }
    ]

    ColumnLayout {
        width: Adaptive.centred(parent.width, Adaptive.narrowFormWidth, 20)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.topMargin: 20
        spacing: 6

        Label { text: qsTr("Condition"); color: Theme.attention }
        TextField {
            Accessible.name: qsTr("Condition")
            objectName: "ConditionTextField"
            text: root.controller.condition
            onTextEdited: root.controller.condition = text
            background: Rectangle { radius: 5; border.width: 1; border.color: Theme.fieldBorder; color: Theme.field }
            leftPadding: 10
            Layout.fillWidth: true
        }
    }
}
