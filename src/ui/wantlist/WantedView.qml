import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// A wanted album: the record form with the most the collector would pay and a priority; "Got It"
// moves it into the collection.
ScreenPage {
    id: root

    title: controller.isNew ? qsTr("Add Wanted Album") : qsTr("Wanted Album")
    onAppeared: controller.viewWillAppear()
    sheetOpen: form.sheet !== ""
    onCloseSheetRequested: form.closeSheets()

    actions: [
        ToolbarButton {
            objectName: "LookUpButton"
            text: qsTr("Look Up")
            onClicked: lookup.open()
        },
        ToolbarButton {
            objectName: "GotItButton"
            text: qsTr("Got It")
            visible: !controller.isNew
            onClicked: gotItDialog.open()
        },
        ToolbarButton {
            objectName: "SaveWantedButton"
            text: qsTr("Save")
            shortcut: StandardKey.Save
            font.bold: true
            onClicked: controller.save()
        }
    ]

    WantedViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    LookupSheet {
        id: lookup
        objectName: "LookupSheet"
        form: controller
    }

    Dialog {
        id: gotItDialog
        objectName: "GotItDialog"
        title: qsTr("Got It")
        modal: true
        parent: Overlay.overlay
        anchors.centerIn: parent
        width: Math.min(parent ? parent.width - 48 : 360, 380)
        standardButtons: Dialog.Cancel | Dialog.Ok
        onAboutToShow: {
            paid.text = ""
            paid.forceActiveFocus()
        }
        // The dialog stays open, with what was typed, when the cost does not read.
        onAccepted: {
            if (!controller.gotIt(paid.text))
                open()
        }
        contentItem: ColumnLayout {
            spacing: 8
            Label {
                text: controller.gotItPrompt
                wrapMode: Text.Wrap
                Layout.fillWidth: true
            }
            TextField {
                Accessible.name: placeholderText
                id: paid
                objectName: "GotItCostField"
                placeholderText: qsTr("Cost")
                inputMethodHints: Qt.ImhFormattedNumbersOnly
                Layout.fillWidth: true
            }
        }
    }

    RecordFormPanel {
        id: form
        objectName: "RecordForm"
        anchors.fill: parent
        controller: controller
        addScreen: true
        labelRequired: false

        underValue: [
            RowLayout {
                Layout.fillWidth: true
                spacing: 12
                RecordFormField {
                    objectName: "MaxPriceTextField"
                    caption: qsTr("Most I Would Pay")
                    inputHints: Qt.ImhFormattedNumbersOnly
                    value: controller.maxPrice
                    accepts: (before, after) => controller.decimalEditAccepted(before, after)
                    onEdited: (t) => controller.maxPrice = t
                    Layout.preferredWidth: 1
                }
                RecordFormField {
                    id: priorityField
                    objectName: "PriorityTextField"
                    caption: qsTr("Priority")
                    picker: true
                    value: controller.priorityName
                    Layout.preferredWidth: 1
                    onTapped: form.openList(priorityField, qsTr("Priority"), controller.priorityNames,
                                            (t) => controller.priorityName = t)
                }
            }
        ]

        footer: [
            ColumnLayout {
                objectName: "StoredTracks"
                visible: controller.storedTracks.length > 0
                Layout.fillWidth: true
                spacing: 2
                Label {
                    text: qsTr("Tracks")
                    color: Theme.secondaryText
                    font.pixelSize: 13
                }
                Repeater {
                    model: controller.storedTracks
                    delegate: Label {
                        required property string modelData
                        text: modelData
                        font.pixelSize: 15
                        wrapMode: Text.Wrap
                        Layout.fillWidth: true
                    }
                }
            },
            StyledButton {
                objectName: "DeleteWantedButton"
                text: qsTr("Delete")
                visible: !controller.isNew
                Layout.fillWidth: true
                onClicked: controller.deleteClicked()
            }
        ]
    }
}
