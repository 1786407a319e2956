import QtQuick
import QtQuick.Controls
import Platterbox

// The current record's notes, full screen.
ScreenPage {
    id: root

    title: "Notes"
    onAppeared: controller.viewWillAppear()

    actions: [
        ToolButton {
            objectName: "SaveVinylButton"
            text: "Save"
            font.bold: true
            onClicked: controller.SaveVinylButtonClicked()
        }
    ]

    NotesViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    Label {
        id: heading
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 16
        text: AppDelegate.state.currentRecordName
        font.pixelSize: 17
        font.bold: true
        elide: Text.ElideRight
    }

    ScrollView {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: heading.bottom
        anchors.bottom: parent.bottom
        anchors.margins: 16
        anchors.bottomMargin: 16 + (Qt.inputMethod.visible ? Qt.inputMethod.keyboardRectangle.height : 0)

        TextArea {
            id: notes
            objectName: "NotesTextView"
            wrapMode: TextEdit.Wrap
            font.pixelSize: 17
            background: Rectangle {
                radius: 5
                border.width: 1
                border.color: "#999999"
            }
            Component.onCompleted: text = controller.notes
            onTextChanged: if (text !== controller.notes) controller.notes = text
            Connections {
                target: controller
                function onNotesChanged() {
                    if (notes.text !== controller.notes)
                        notes.text = controller.notes
                }
            }
        }
    }
}
