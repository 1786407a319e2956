import QtQuick
import QtQuick.Controls
import Platterbox

// A new record: the record form and "Save".
ScreenPage {
    id: root

    title: qsTr("Add Record")
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
            objectName: "SaveNewVinylButton"
            text: qsTr("Save")
            shortcut: StandardKey.Save
            font.bold: true
            onClicked: controller.SaveNewVinylButtonClicked()
        }
    ]

    AddVinylViewController {
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
        addScreen: true
    }
}
