pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The whole collection as cards (or, desktop-wide, as a table), with the sort menu, the search
// field and the count.
ScreenPage {
    id: root

    title: controller.title

    // The table where it was chosen and the window is desktop-wide; the cards elsewhere.
    readonly property bool showsTable: controller.tableChosen && Adaptive.isDesktop(width)

    function unwound(segue) {
        controller.unwindToList()
    }
    // Back from a record lent or taken back meanwhile: its card says so.
    onAppeared: controller.viewWillAppear()

    ListVinylTableViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    actions: [
        ToolbarButton {
            objectName: "SortButton"
            text: qsTr("Sort")
            Accessible.name: controller.sortAction
            onClicked: controller.SortButtonTapped()
        },
        ToolbarButton {
            objectName: "SortMenuButton"
            text: qsTr("Sort by")
            Accessible.name: qsTr("Choose the sort order")
            onClicked: sortMenu.open()

            Menu {
                id: sortMenu
                title: qsTr("Sort Options")
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
        ToolbarButton {
            objectName: "TableButton"
            text: controller.tableChosen ? qsTr("Cards") : qsTr("Table")
            toolTip: controller.tableChosen ? qsTr("Show the records as cards") : qsTr("Show the records as a table")
            visible: Adaptive.isDesktop(root.width)
            onClicked: controller.tableChosen = !controller.tableChosen
        },
        ToolbarButton {
            objectName: "ReportButton"
            text: qsTr("Report")
            toolTip: qsTr("Report of this list")
            shortcut: StandardKey.Print
            // The title keeps its room beside four buttons.
            givesWay: true
            onClicked: AppDelegate.navigator.show("PrintVinylView")
        },
        ToolbarButton {
            objectName: "AddButton"
            text: "+"
            font.pixelSize: 24
            toolTip: qsTr("Add a record")
            Accessible.name: qsTr("Add record")
            shortcut: StandardKey.New
            enabled: controller.canAdd
            onClicked: controller.addButtonTapped()
        }
    ]

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        SearchField {
            id: search
            placeholderText: controller.placeholder
            results: root.showsTable ? table : list
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
        // One of the two shows the rows; the other holds no model, so it makes no rows.
        RecordCardGrid {
            id: list
            objectName: "VinylList"
            model: root.showsTable ? null : controller.model
            visible: !root.showsTable
            searchField: search
            Layout.fillWidth: true
            Layout.fillHeight: true
            onActivated: (index) => controller.rowPicked(index)
            onDeleteRequested: (index) => controller.deleteRow(index)
        }
        RecordTable {
            id: table
            objectName: "VinylTableView"
            model: root.showsTable ? controller.model : null
            visible: root.showsTable
            titles: controller.columnTitles
            sortColumn: controller.sortColumn
            sortAscending: controller.sortAsc
            searchField: search
            Layout.fillWidth: true
            Layout.fillHeight: true
            onHeaderClicked: (column) => controller.columnHeaderClicked(column)
            onActivated: (index) => controller.rowPicked(index)
            onDeleteRequested: (index) => controller.deleteRow(index)
        }
    }
}
