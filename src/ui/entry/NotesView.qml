import QtQuick
import QtQuick.Controls
import Platterbox

// The current record's notes, full screen.
ScreenPage {
    id: root

    title: qsTr("Notes")
    onAppeared: controller.viewWillAppear()

    actions: [
        ToolbarButton {
            objectName: "SaveVinylButton"
            text: qsTr("Save")
            shortcut: StandardKey.Save
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
        width: Adaptive.centred(parent.width, Adaptive.formWidth, 16)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.margins: 16
        text: AppDelegate.state.currentRecordName
        font.pixelSize: 17
        font.bold: true
        elide: Text.ElideRight
    }

    ScrollView {
        id: notesScroller
        width: heading.width
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: heading.bottom
        anchors.bottom: parent.bottom
        anchors.margins: 16
        anchors.bottomMargin: 16 + (Qt.inputMethod.visible ? Qt.inputMethod.keyboardRectangle.height : 0)

        TextArea {
            Accessible.name: qsTr("Notes")
            // Tab moves on to the next control rather than typing a tab.
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            id: notes
            objectName: "NotesTextView"
            WheelScroller { view: notesScroller.contentItem }
            wrapMode: TextEdit.Wrap
            font.pixelSize: 17
            // Text keeps clear of the border drawn around it.
            leftPadding: 10
            rightPadding: 10
            background: Rectangle {
                radius: 5
                border.width: 1
                border.color: Theme.fieldBorder
                color: Theme.field
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
