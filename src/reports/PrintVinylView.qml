import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The printed report: the records of the screen it was opened from, as rich text, with the
// rebuild and print buttons.
ScreenPage {
    id: root

    title: controller.title

    PrintVinylViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    // A new report is read from its title.
    Connections {
        target: controller
        function onReportChanged() {
            fileTextView.cursorPosition = 0
            scroller.ScrollBar.vertical.position = 0
        }
    }

    ColumnLayout {
        width: Adaptive.centred(parent.width, Adaptive.documentWidth, 12)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.margins: 12
        spacing: 10

        Rectangle {
            radius: 5
            border.width: 1
            border.color: "#808080"
            color: "white"
            clip: true
            Layout.fillWidth: true
            Layout.fillHeight: true

            ScrollView {
                id: scroller
                anchors.fill: parent
                anchors.margins: 1

                TextArea {
                    id: fileTextView
                    objectName: "FileTextView"
                    WheelScroller { view: scroller.contentItem }
                    readOnly: true
                    textFormat: TextEdit.RichText
                    wrapMode: TextEdit.Wrap
                    color: "black"
                    background: null
                    padding: 8
                    Component.onCompleted: controller.setFileTextView(fileTextView.textDocument)
                }
            }
        }
        RowLayout {
            spacing: 12
            Layout.fillWidth: true

            StyledButton {
                objectName: "CreateFileButton"
                text: "Rebuild"
                Layout.fillWidth: true
                onClicked: controller.CreateFileClick()
            }
            StyledButton {
                objectName: "PrintButton"
                text: "Print"
                shortcut: StandardKey.Print
                visible: controller.printButtonVisible
                Layout.fillWidth: true
                onClicked: controller.EmailFileClick()
            }
        }
    }
}
