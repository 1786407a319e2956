import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// Builds the exchange file (or the CSV files for a spreadsheet), shows it, and saves or mails it.
ScreenPage {
    id: root

    title: qsTr("Export Vinyl Records")

    ExportViewController {
        id: controller
    }

    AlertDialog { objectName: "alert"; controller: controller }

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
                objectName: "ExportButton"
                text: qsTr("Create File")
                enabled: controller.exportButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.CreateUpdateFile()
            }
            StyledButton {
                objectName: "ExportWithoutImagesButton"
                text: qsTr("Without Images")
                enabled: controller.exportButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.CreateUpdateFileWithoutImages()
            }
        }
        // Side by side beyond a phone; on a phone the box has a line of its own, so its text shows whole.
        GridLayout {
            columns: Adaptive.isPhone(root.width) ? 1 : 2
            columnSpacing: 10
            rowSpacing: 0
            Layout.fillWidth: true
            StyledButton {
                objectName: "ExportCsvButton"
                text: qsTr("Export CSV")
                enabled: controller.exportButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.CreateCsvFile()
            }
            CheckBox {
                objectName: "TracksInRecordsFileBox"
                text: qsTr("Tracks in the same file")
                checked: controller.tracksInRecordsFile
                enabled: controller.exportButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onToggled: controller.tracksInRecordsFile = checked
            }
        }
        RowLayout {
            Layout.fillWidth: true
            spacing: 10
            StyledButton {
                objectName: "SaveFileButton"
                text: qsTr("Save To Files")
                enabled: controller.saveFileButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.SaveFile()
            }
            StyledButton {
                objectName: "EmailButton"
                text: qsTr("Email File")
                enabled: controller.emailButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.WriteTextFile()
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 10
            ProgressBar {
                objectName: "ProgressView"
                value: controller.progress
                Layout.fillWidth: true
                Behavior on value { NumberAnimation { duration: 120 } }
            }
            Label {
                objectName: "ProgressCount"
                text: controller.progressText
                visible: controller.building
                font.pixelSize: 15
                font.bold: true
            }
            StyledButton {
                objectName: "CancelButton"
                text: qsTr("Cancel")
                visible: controller.building
                implicitHeight: 36
                font.pixelSize: 15
                onClicked: controller.CancelButtonTapped()
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            radius: 5
            border.width: 1
            border.color: Theme.cardBorder
            color: Theme.field
            clip: true

            ScrollView {
                id: exportScroller
                anchors.fill: parent
                anchors.margins: 4
                TextArea {
                    Accessible.name: qsTr("Exported text")
                    // Tab moves on to the next control rather than typing a tab.
                    Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                    Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
                    objectName: "ExportTextView"
                    WheelScroller { view: exportScroller.contentItem }
                    text: controller.exportText
                    readOnly: true
                    wrapMode: TextEdit.WrapAnywhere
                    font.family: "monospace"
                    font.pixelSize: 12
                    background: null
                }
            }

            BusyIndicator {
                objectName: "activityIndicator"
                anchors.centerIn: parent
                running: controller.building
                visible: running
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: helpText.implicitHeight + 16
            radius: 5
            border.width: 1
            border.color: Theme.cardBorder
            color: Theme.field

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
