pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Dialogs
import Platterbox

// The Look Up sheet of the add and edit screens: a field for a barcode, a catalog number or
// "Artist - Title", Scan and Choose Photo…, the releases found with their small covers, and the
// questions that follow a choice. The whole window on a phone, a centred sheet beyond it.
Popup {
    id: root

    required property QtObject form
    readonly property alias controller: sheet

    parent: Overlay.overlay
    readonly property real areaWidth: parent ? parent.width : 390
    readonly property real areaHeight: parent ? parent.height : 844
    readonly property bool phone: Adaptive.isPhone(areaWidth)
    width: phone ? areaWidth : Math.min(areaWidth - 48, 620)
    height: phone ? areaHeight : Math.min(areaHeight - 48, 780)
    x: (areaWidth - width) / 2
    y: (areaHeight - height) / 2
    modal: true
    Overlay.modal: Rectangle { color: Theme.scrim }
    padding: 0
    closePolicy: Popup.CloseOnEscape
    background: Rectangle { color: Theme.surface; radius: root.phone ? 0 : 10; border.color: Theme.border }

    onOpened: queryField.forceActiveFocus()
    onClosed: sheet.Cancel()

    LookupSheetController {
        id: sheet
        form: root.form
        onCloseRequested: root.close()
    }

    FileDialog {
        id: photoDialog
        title: qsTr("Choose a Photo of the Barcode")
        nameFilters: [qsTr("Pictures (*.jpg *.jpeg *.png *.webp *.bmp)"), qsTr("All files (*)")]
        onAccepted: sheet.PhotoChosen(selectedFile)
    }

    LookupScanPage {
        id: scanPage
        onFound: (digits) => sheet.BarcodeScanned(digits)
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 52
            color: Theme.toolbar
            radius: root.phone ? 0 : 10
            RowLayout {
                anchors.fill: parent
                anchors.leftMargin: 16
                anchors.rightMargin: 8
                Label {
                    text: qsTr("Look Up")
                    font.pixelSize: 18
                    font.bold: true
                    Layout.fillWidth: true
                }
                ToolbarButton {
                    objectName: "LookupCancelButton"
                    text: qsTr("Cancel")
                    onClicked: root.close()
                }
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            Layout.margins: 16
            spacing: 10

            RowLayout {
                Layout.fillWidth: true
                spacing: 8
                TextField {
                    Accessible.name: placeholderText
                    id: queryField
                    objectName: "LookupQueryField"
                    Layout.fillWidth: true
                    placeholderText: qsTr("Barcode, catalog number or Artist - Title")
                    inputMethodHints: Qt.ImhNoPredictiveText
                    text: sheet.query
                    onTextEdited: sheet.query = text
                    onAccepted: sheet.Search()
                }
                StyledButton {
                    objectName: "LookupSearchButton"
                    text: qsTr("Search")
                    implicitHeight: 44
                    enabled: sheet.query.trim() !== ""
                    onClicked: sheet.Search()
                }
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 8
                StyledButton {
                    objectName: "LookupScanButton"
                    text: qsTr("Scan")
                    visible: sheet.canScan
                    implicitHeight: 44
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    onClicked: scanPage.open()
                }
                StyledButton {
                    objectName: "LookupPhotoButton"
                    text: qsTr("Choose Photo…")
                    implicitHeight: 44
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    onClicked: photoDialog.open()
                }
            }
            RowLayout {
                Layout.fillWidth: true
                visible: sheet.busy || sheet.message !== ""
                spacing: 8
                BusyIndicator {
                    running: sheet.busy
                    visible: sheet.busy
                    implicitWidth: 28
                    implicitHeight: 28
                }
                Label {
                    objectName: "LookupMessage"
                    text: sheet.message
                    wrapMode: Text.Wrap
                    color: Theme.secondaryText
                    Layout.fillWidth: true
                }
            }
        }

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: Theme.divider
        }

        StackLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            currentIndex: sheet.page === "duplicate" ? 1 : sheet.page === "review" ? 2 : 0

            ListView {
                id: candidateList
                objectName: "LookupCandidates"
                clip: true
                model: sheet.candidates
                enabled: !sheet.busy
                boundsBehavior: Flickable.StopAtBounds
                WheelScroller { view: candidateList }
                delegate: ItemDelegate {
                    id: row
                    required property int index
                    required property string title
                    required property string artist
                    required property string details
                    required property string coverSource
                    required property string accessibleLabel
                    width: ListView.view.width
                    Accessible.name: accessibleLabel
                    onClicked: sheet.CandidateChosen(index)
                    contentItem: RowLayout {
                        spacing: 12
                        Rectangle {
                            implicitWidth: 64
                            implicitHeight: 64
                            Layout.alignment: Qt.AlignTop
                            color: Theme.headerFill
                            radius: 4
                            Image {
                                Accessible.role: Accessible.Graphic
                                Accessible.name: qsTr("Front cover of %1").arg(row.title)
                                anchors.fill: parent
                                fillMode: Image.PreserveAspectFit
                                source: row.coverSource
                                visible: row.coverSource !== ""
                            }
                        }
                        ColumnLayout {
                            Layout.fillWidth: true
                            spacing: 2
                            Label {
                                Accessible.ignored: true
                                text: row.title
                                font.bold: true
                                font.pixelSize: 16
                                wrapMode: Text.Wrap
                                Layout.fillWidth: true
                            }
                            Label {
                                Accessible.ignored: true
                                text: row.artist
                                font.pixelSize: 15
                                wrapMode: Text.Wrap
                                Layout.fillWidth: true
                            }
                            Label {
                                Accessible.ignored: true
                                text: row.details
                                font.pixelSize: 13
                                color: Theme.secondaryText
                                wrapMode: Text.Wrap
                                Layout.fillWidth: true
                            }
                        }
                    }
                }
            }

            // The chosen release is in the collection already.
            Flickable {
                contentHeight: duplicatePage.implicitHeight + 32
                clip: true
                ColumnLayout {
                    id: duplicatePage
                    x: 16
                    y: 16
                    width: parent.width - 32
                    spacing: 12
                    Label {
                        text: qsTr("Already in the Collection?")
                        font.bold: true
                        font.pixelSize: 17
                    }
                    Label {
                        objectName: "LookupDuplicateMessage"
                        text: sheet.duplicateMessage
                        wrapMode: Text.Wrap
                        font.pixelSize: 15
                        Layout.fillWidth: true
                    }
                    StyledButton {
                        objectName: "LookupAddCopyButton"
                        text: qsTr("Raise Its Quantity by One")
                        Layout.fillWidth: true
                        onClicked: sheet.AddCopyButtonClicked()
                    }
                    StyledButton {
                        objectName: "LookupAddSeparateButton"
                        text: qsTr("Add as a Separate Record")
                        Layout.fillWidth: true
                        onClicked: sheet.AddSeparateButtonClicked()
                    }
                    StyledButton {
                        objectName: "LookupDuplicateCancelButton"
                        text: qsTr("Cancel")
                        Layout.fillWidth: true
                        onClicked: sheet.BackToCandidates()
                    }
                }
            }

            // What the edit screen's form takes from the release, before it does.
            Flickable {
                contentHeight: reviewPage.implicitHeight + 32
                clip: true
                ColumnLayout {
                    id: reviewPage
                    x: 16
                    y: 16
                    width: parent.width - 32
                    spacing: 8
                    Label {
                        text: qsTr("Fill In What Is Empty")
                        font.bold: true
                        font.pixelSize: 17
                        visible: sheet.changes.length > 0
                    }
                    Repeater {
                        model: sheet.changes
                        delegate: ColumnLayout {
                            required property var modelData
                            Layout.fillWidth: true
                            spacing: 0
                            Label {
                                text: parent.modelData.what
                                color: Theme.secondaryText
                                font.pixelSize: 13
                            }
                            Label {
                                text: parent.modelData.becomes
                                font.pixelSize: 16
                                wrapMode: Text.Wrap
                                Layout.fillWidth: true
                            }
                        }
                    }
                    RowLayout {
                        Layout.fillWidth: true
                        Layout.topMargin: 8
                        spacing: 10
                        StyledButton {
                            objectName: "LookupBackButton"
                            text: qsTr("Back")
                            Layout.fillWidth: true
                            Layout.preferredWidth: 1
                            onClicked: sheet.BackToCandidates()
                        }
                        StyledButton {
                            objectName: "LookupFillInButton"
                            text: qsTr("Fill In")
                            font.bold: true
                            visible: sheet.changes.length > 0
                            Layout.fillWidth: true
                            Layout.preferredWidth: 1
                            onClicked: sheet.FillInButtonClicked()
                        }
                    }
                }
            }
        }
    }
}
