import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Platterbox

// Leads to the export and import screens, and keeps the collection safe: back up, restore and
// undo the last import.
ScreenPage {
    id: root

    title: qsTr("Import / Export")

    ImportExportViewController {
        id: controller
        onOpenBackupFileDialog: backupDialog.open()
        onOpenRestoreFileDialog: restoreDialog.open()
    }

    AlertDialog { objectName: "alert"; controller: controller }

    FileDialog {
        id: backupDialog
        title: qsTr("Back up the collection to")
        fileMode: FileDialog.SaveFile
        defaultSuffix: "platterbox"
        nameFilters: [qsTr("Platterbox backups (*.platterbox)"), qsTr("All files (*)")]
        onAccepted: controller.backUpTo(selectedFile)
    }

    FileDialog {
        id: restoreDialog
        title: qsTr("Choose the backup to restore")
        fileMode: FileDialog.OpenFile
        nameFilters: [qsTr("Platterbox backups (*.platterbox)"), qsTr("All files (*)")]
        onAccepted: controller.restoreFrom(selectedFile)
    }

    ColumnLayout {
        width: Adaptive.centred(parent.width, 520, 24)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.topMargin: 24
        spacing: 16

        Label {
            text: qsTr("Move the whole collection to and from an exchange file.")
            wrapMode: Text.Wrap
            font.pixelSize: 15
            color: Theme.secondaryText
            Layout.fillWidth: true
        }
        StyledButton {
            objectName: "ExportButton"
            text: qsTr("Export")
            enabled: !controller.busy
            Layout.fillWidth: true
            onClicked: AppDelegate.navigator.show("ExportView")
        }
        StyledButton {
            objectName: "ImportButton"
            text: qsTr("Import")
            enabled: !controller.busy && !AppDelegate.readOnly
            Layout.fillWidth: true
            onClicked: AppDelegate.navigator.show("ImportView")
        }

        Label {
            text: qsTr("A backup keeps everything: every record, track, picture and cover file, exactly as stored.")
            wrapMode: Text.Wrap
            font.pixelSize: 15
            color: Theme.secondaryText
            Layout.fillWidth: true
            Layout.topMargin: 8
        }
        RowLayout {
            spacing: 12
            Layout.fillWidth: true
            StyledButton {
                objectName: "BackUpButton"
                text: qsTr("Back Up")
                enabled: !controller.busy
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.BackUpButtonTapped()
            }
            StyledButton {
                objectName: "RestoreButton"
                text: qsTr("Restore")
                enabled: !controller.busy
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.RestoreButtonTapped()
            }
        }
        StyledButton {
            objectName: "UndoLastImportButton"
            text: qsTr("Undo Last Import")
            enabled: controller.undoButtonEnabled
            Layout.fillWidth: true
            onClicked: controller.UndoLastImportButtonTapped()
        }

        ColumnLayout {
            visible: controller.busy
            spacing: 6
            Layout.fillWidth: true
            Layout.topMargin: 8
            Label {
                text: controller.busyText + (controller.progressText ? "  " + controller.progressText : "")
                font.pixelSize: 14
                Layout.fillWidth: true
            }
            RowLayout {
                spacing: 12
                Layout.fillWidth: true
                ProgressBar {
                    objectName: "BusyProgress"
                    value: controller.progress
                    Layout.fillWidth: true
                }
                StyledButton {
                    objectName: "CancelButton"
                    text: qsTr("Cancel")
                    onClicked: controller.CancelButtonTapped()
                }
            }
        }
    }
}
