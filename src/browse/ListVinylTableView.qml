pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The whole collection as cards, with the sort menu, the search field and the count.
ScreenPage {
    id: root

    title: controller.title

    function unwound(segue) {
        controller.unwindToList()
    }

    ListVinylTableViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    actions: [
        ToolButton {
            objectName: "SortButton"
            text: "Sort"
            onClicked: controller.SortButtonTapped()
        },
        ToolButton {
            objectName: "SortMenuButton"
            text: "Sort by"
            onClicked: sortMenu.open()

            Menu {
                id: sortMenu
                title: "Sort Options"
                y: parent.height

                Repeater {
                    model: controller.sortOptions
                    delegate: MenuItem {
                        required property string modelData
                        required property int index
                        text: modelData
                        onTriggered: controller.sortOptionSelected(index + 1)
                    }
                }
            }
        },
        ToolButton {
            objectName: "ReportButton"
            text: "Report"
            // Compact, so the title keeps its room beside four buttons.
            leftPadding: 4
            rightPadding: 4
            font.capitalization: Font.MixedCase
            onClicked: AppDelegate.navigator.show("PrintVinylView")
        },
        ToolButton {
            objectName: "AddButton"
            text: "+"
            font.pixelSize: 24
            enabled: controller.canAdd
            onClicked: controller.addButtonTapped()
        }
    ]

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TextField {
            objectName: "SearchField"
            placeholderText: controller.placeholder
            inputMethodHints: Qt.ImhNoPredictiveText
            Layout.fillWidth: true
            Layout.leftMargin: 10
            Layout.rightMargin: 10
            onTextChanged: controller.updateSearchResults(text)
        }
        ListHeaderLabel {
            objectName: "HeaderLabel"
            text: controller.headerText
            Layout.fillWidth: true
        }
        ListView {
            id: list
            objectName: "VinylList"
            clip: true
            model: controller.model
            reuseItems: true
            Layout.fillWidth: true
            Layout.fillHeight: true
            ScrollIndicator.vertical: ScrollIndicator {}

            delegate: ListVinylTableViewCell {
                required property int index
                width: list.width
                onPicked: controller.rowPicked(index)
                onDeleteRequested: controller.deleteRow(index)
            }
        }
    }
}
