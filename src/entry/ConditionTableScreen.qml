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
        ToolButton {
            objectName: "SortButton"
            text: "\u21C5"
            font.pixelSize: 20
            Accessible.name: "Sort"
            onClicked: root.controller.SortButtonTapped()
        },
        ToolButton {
            objectName: "AddButton"
            text: "+"
            font.pixelSize: 24
            Accessible.name: "Add Condition"
            onClicked: root.controller.AddButtonTapped()
        }
    ]

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        TextField {
            objectName: "SearchField"
            placeholderText: root.controller.searchPlaceholder
            text: root.controller.searchText
            onTextEdited: root.controller.searchText = text
            Layout.fillWidth: true
        }

        ListView {
            objectName: "ConditionList"
            model: root.controller.model
            spacing: 8
            clip: true
            Layout.fillWidth: true
            Layout.fillHeight: true

            delegate: SwipeDelegate {
                id: row
                required property int index
                required property string conditionLabel

                width: ListView.view.width
                height: 52
                padding: 0
                topPadding: 0
                bottomPadding: 0
                leftPadding: 0
                rightPadding: 0
                background: Item {}
                contentItem: Card {
                    border.width: 2
                    border.color: "black"
                    Label {
                        anchors.fill: parent
                        anchors.leftMargin: 14
                        anchors.rightMargin: 14
                        verticalAlignment: Text.AlignVCenter
                        text: row.conditionLabel
                        font.pixelSize: 16
                        elide: Text.ElideRight
                    }
                }
                onClicked: root.controller.rowSelected(index)
                swipe.right: Rectangle {
                    width: 96
                    height: row.height
                    anchors.right: parent.right
                    color: "#d32f2f"
                    radius: 10
                    Label {
                        anchors.centerIn: parent
                        text: "delete"
                        color: "white"
                        font.pixelSize: 16
                    }
                    TapHandler { onTapped: root.controller.deleteRow(row.index) }
                }
            }
        }
    }
}
