pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Platterbox

// Loads an exchange, Discogs or CSV file, shows what importing it would change, and imports it,
// into the collection or, with the switch on, onto the wantlist.
ScreenPage {
    id: root

    title: qsTr("Import Vinyl Records")

    ImportViewController {
        id: controller
        onOpenDocumentPicker: picker.open()
    }

    AlertDialog { objectName: "alert"; controller: controller }

    FileDialog {
        id: picker
        title: qsTr("Choose the file to import")
        fileMode: FileDialog.OpenFile
        nameFilters: [qsTr("Collection files (*.csv *.txt)"), qsTr("All files (*)")]
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
            Label { text: qsTr("Into the Wantlist"); font.pixelSize: 15; Layout.fillWidth: true }
            Switch {
                objectName: "IntoWantlistSwitch"
                checked: controller.intoWantlist
                enabled: controller.loadFileButtonEnabled
                Accessible.name: qsTr("Into the Wantlist")
                Accessible.description: qsTr("Add the albums of the file to the wantlist instead of the collection")
                onToggled: controller.intoWantlist = checked
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 10
            StyledButton {
                objectName: "LoadFileButton"
                text: qsTr("Load File")
                enabled: controller.loadFileButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.LoadFile()
            }
            StyledButton {
                objectName: "ImportButton"
                text: qsTr("Import")
                enabled: controller.importButtonEnabled
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.ImportTextFile()
            }
            StyledButton {
                objectName: "CancelButton"
                text: qsTr("Cancel")
                visible: controller.busy
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                onClicked: controller.CancelButtonTapped()
            }
        }

        Label {
            objectName: "FileNameLabel"
            text: controller.filename
            visible: text.length > 0
            elide: Text.ElideMiddle
            font.pixelSize: 14
            color: Theme.secondaryText
            Layout.fillWidth: true
        }
        Label {
            objectName: "FormatLabel"
            text: controller.formatLabel
            visible: text.length > 0
            wrapMode: Text.Wrap
            font.pixelSize: 14
            color: Theme.secondaryText
            Layout.fillWidth: true
        }

        RowLayout {
            visible: controller.busy
            spacing: 10
            Layout.fillWidth: true
            ProgressBar {
                objectName: "ImportProgress"
                value: controller.progress
                Layout.fillWidth: true
            }
            Label {
                text: controller.importing ? qsTr("Importing %1").arg(controller.progressText) : qsTr("Reading %1").arg(controller.progressText)
                font.pixelSize: 13
            }
        }

        Label {
            objectName: "CountsLabel"
            text: controller.countsLabel
            visible: text.length > 0
            font.pixelSize: 16
            font.bold: true
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }

        Label {
            objectName: "RemarksLabel"
            text: controller.remarksLabel
            visible: text.length > 0
            font.pixelSize: 12
            color: Theme.secondaryText
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }

        // The wantlist takes a file's albums without a line-by-line preview.
        TabBar {
            id: pages
            objectName: "PreviewTabs"
            visible: !controller.intoWantlist
            Layout.fillWidth: true
            TabButton { text: qsTr("Preview") }
            TabButton { text: qsTr("File") }
        }

        // Which kind of line the preview shows.
        RowLayout {
            visible: pages.currentIndex === 0 && controller.countsLabel.length > 0 && !controller.intoWantlist
            spacing: 8
            Layout.fillWidth: true
            Label { text: qsTr("Show"); font.pixelSize: 14 }
            ComboBox {
                Accessible.name: qsTr("Show")
                objectName: "ShownKindBox"
                // Index 0 is every line; the others are the kinds 0 to 3.
                model: [qsTr("All lines"), qsTr("New"), qsTr("Updated"), qsTr("Unchanged"), qsTr("Problems")]
                currentIndex: controller.shownKind + 1
                font.pixelSize: 14
                Layout.fillWidth: true
                onActivated: (index) => controller.ShowLines(index - 1)
            }
        }

        StackLayout {
            currentIndex: pages.currentIndex
            visible: !controller.intoWantlist
            Layout.fillWidth: true
            Layout.fillHeight: true

            ListView {
                id: previewList
                objectName: "PreviewList"
                clip: true
                model: controller.previewLines
                reuseItems: true
                spacing: 0
                delegate: ImportPreviewTableViewCell {
                    width: ListView.view.width
                }
                ScrollBar.vertical: ScrollBar {}
                WheelScroller { view: previewList }

                BusyIndicator {
                    anchors.centerIn: parent
                    running: controller.busy
                    visible: running
                }
            }

            Rectangle {
                radius: 5
                border.width: 1
                border.color: Theme.cardBorder
                color: Theme.field
                clip: true

                ScrollView {
                    id: importScroller
                    anchors.fill: parent
                    anchors.margins: 4
                    TextArea {
                        Accessible.name: qsTr("Text of the file")
                        // Tab moves on to the next control rather than typing a tab.
                        Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                        Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
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
            }
        }

        Item {
            visible: controller.intoWantlist
            Layout.fillHeight: true
        }

        // The help is for choosing a file; a preview takes its room.
        Rectangle {
            visible: controller.countsLabel.length === 0
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
