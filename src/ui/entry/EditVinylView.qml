import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The record the user opened: the record form, "Share" and "Save", and the ways to the
// record's tracks, notes and large covers.
ScreenPage {
    id: root

    title: qsTr("Edit Record")
    onAppeared: controller.viewWillAppear()
    sheetOpen: form.sheet !== ""
    onCloseSheetRequested: form.closeSheets()

    // Back from tracks, notes or zoom.
    function unwound(segue: string) {
        controller.unwindToEdit()
    }

    actions: [
        ToolbarButton {
            objectName: "ShareButton"
            text: qsTr("Share")
            onClicked: controller.shareButtonClicked()
        },
        ToolbarButton {
            objectName: "LookUpButton"
            text: qsTr("Look Up")
            onClicked: lookup.open()
        },
        ToolbarButton {
            objectName: "SaveVinylButton"
            text: qsTr("Save")
            shortcut: StandardKey.Save
            font.bold: true
            onClicked: controller.SaveVinylButtonClicked()
        }
    ]

    EditVinylViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    LookupSheet {
        id: lookup
        objectName: "LookupSheet"
        form: controller
    }

    RecordFormPanel {
        id: form
        objectName: "RecordForm"
        anchors.fill: parent
        controller: controller
        addScreen: false
        onCoverDoubleTapped: controller.TapFrontImage()

        underValue: [
            ValueHistoryPanel {
                objectName: "ValueHistory"
                Layout.fillWidth: true
                rows: controller.valueHistory
                points: controller.valueHistoryPoints
            },
            LoanPanel {
                objectName: "LoanPanel"
                Layout.fillWidth: true
                Layout.topMargin: 8
                controller: controller
            }
        ]

        footer: [
            RowLayout {
                Layout.fillWidth: true
                spacing: 10
                StyledButton {
                    objectName: "TracksButton"
                    text: qsTr("Tracks")
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    onClicked: controller.TracksButtonClicked()
                }
                StyledButton {
                    objectName: "NotesButton"
                    text: qsTr("Notes")
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    onClicked: controller.NotesButtonClicked()
                }
                StyledButton {
                    objectName: "ZoomButton"
                    text: qsTr("Zoom")
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    onClicked: controller.TapFrontImage()
                }
            }
        ]
    }
}
