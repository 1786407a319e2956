pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// A condition list: search, sort, swipe to delete, tap to edit.
ScreenPage {
    id: root

    required property QtObject controller

    title: controller.title

    onAppeared: controller.viewWillAppear()
    onDisappeared: controller.viewWillDisappear()

    AlertDialog { controller: root.controller }

    actions: [
        ToolbarButton {
            objectName: "SortButton"
            text: "\u21C5"
            font.pixelSize: 20
            Accessible.name: qsTr("Sort")
            onClicked: root.controller.SortButtonTapped()
        },
        ToolbarButton {
            objectName: "AddButton"
            text: "+"
            font.pixelSize: 24
            Accessible.name: qsTr("Add Condition")
            shortcut: StandardKey.New
            onClicked: root.controller.AddButtonTapped()
        }
    ]

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        SearchField {
            id: search
            results: list
            placeholderText: root.controller.searchPlaceholder
            text: root.controller.searchText
            onTextEdited: root.controller.searchText = text
            Layout.fillWidth: true
        }

        CardGrid {
            id: list
            objectName: "ConditionList"
            model: root.controller.model
            cardWidth: Adaptive.groupCardWidth
            cardHeight: 60
            // Side by side, the cards keep a gap between them.
            cardInsetX: columns > 1 ? 6 : 0
            searchField: search
            Layout.fillWidth: true
            Layout.fillHeight: true
            onActivated: (index) => root.controller.rowSelected(index)

            delegate: SwipeRow {
                id: row
                required property int index
                required property string conditionLabel

                itemName: conditionLabel
                Accessible.name: conditionLabel
                width: list.cellWidth
                height: list.cellHeight
                insetX: list.cardInsetX
                insetY: 4
                padding: 0
                topPadding: insetY
                bottomPadding: insetY
                leftPadding: insetX
                rightPadding: insetX
                background: Item {}
                contentItem: Card {
                    hovered: row.hovered
                    Label {
                        Accessible.ignored: true
                        anchors.fill: parent
                        anchors.leftMargin: 14
                        anchors.rightMargin: 14
                        verticalAlignment: Text.AlignVCenter
                        text: row.conditionLabel
                        font.pixelSize: 16
                        elide: Text.ElideRight
                    }
                }
                onClicked: {
                    list.currentIndex = index
                    root.controller.rowSelected(index)
                }
                onDeleteRequested: root.controller.deleteRow(index)
            }
        }
    }
}
