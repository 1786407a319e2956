import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Platterbox

// Loads an exchange file, shows it, and merges it into the collection.
ScreenPage {
    id: root

    title: "Import Vinyl Records"

    ImportViewController {
        id: controller
        onOpenDocumentPicker: picker.open()
    }

    AlertDialog { objectName: "alert"; controller: controller }

    FileDialog {
        id: picker
        title: "Choose the exchange file"
        fileMode: FileDialog.OpenFile
        nameFilters: ["Exchange files (*.csv *.txt)", "All files (*)"]
        onAccepted: controller.documentPicked(selectedFile)
        onRejected: controller.documentPickerWasCancelled()
    }

    ColumnLayout {
        width: Adaptive.centred(parent.width, Adaptive.documentWidth, 16)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.margins: 16
        spacing: 10

        RowLayout {
            Layout.fillWidth: true
            spacing: 10
            StyledButton {
                objectName: "LoadFileButton"
                text: "Load File"
                enabled: controller.loadFileButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.LoadFile()
            }
            StyledButton {
                objectName: "ImportButton"
                text: "Import"
                enabled: controller.importButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.ImportTextFile()
            }
        }

        Label {
            objectName: "FileNameLabel"
            text: controller.filename
            visible: text.length > 0
            elide: Text.ElideMiddle
            font.pixelSize: 14
            color: "#555555"
            Layout.fillWidth: true
        }

        ProgressBar {
            objectName: "ImportProgress"
            value: controller.progress
            visible: controller.importing || controller.progress > 0
            Layout.fillWidth: true
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            radius: 5
            border.width: 1
            border.color: "black"
            clip: true

            ScrollView {
                id: importScroller
                anchors.fill: parent
                anchors.margins: 4
                TextArea {
                    objectName: "ImportTextView"
                    WheelScroller { view: importScroller.contentItem }
                    text: controller.importText
                    readOnly: true
                    wrapMode: TextEdit.WrapAnywhere
                    font.family: "monospace"
                    font.pixelSize: 12
                    background: null
                }
            }

            BusyIndicator {
                anchors.centerIn: parent
                running: controller.importing
                visible: running
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: helpText.implicitHeight + 16
            radius: 5
            border.width: 1
            border.color: "black"

            Label {
                id: helpText
                objectName: "HelpTextView"
                anchors.fill: parent
                anchors.margins: 8
                text: controller.helpText
                wrapMode: Text.Wrap
                font.pixelSize: 14
            }
        }
    }
}
