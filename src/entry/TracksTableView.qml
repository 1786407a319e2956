pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The tracks of the current record.
ScreenPage {
    id: root

    title: "Tracks"

    TracksTableViewController {
        id: controller
    }

    onAppeared: controller.viewWillAppear()

    AlertDialog { controller: controller }

    actions: [
        ToolButton {
            objectName: "SortButton"
            text: "\u21C5"
            font.pixelSize: 20
            Accessible.name: "Sort"
            onClicked: controller.SortButtonTapped()
        },
        ToolButton {
            objectName: "AddButton"
            text: "+"
            font.pixelSize: 24
            Accessible.name: "Add Track"
            onClicked: controller.AddButtonTapped()
        }
    ]

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        TextField {
            objectName: "SearchField"
            placeholderText: controller.searchPlaceholder
            text: controller.searchText
            onTextEdited: controller.searchText = text
            Layout.fillWidth: true
        }

        ListView {
            id: list
            objectName: "TrackList"
            model: controller.model
            spacing: 8
            clip: true
            Layout.fillWidth: true
            Layout.fillHeight: true

            delegate: SwipeDelegate {
                id: row
                required property int index
                required property string songLabel
                required property string trackNumberLabel
                required property string durationLabel
                required property string writtenByLabel

                width: ListView.view.width
                height: 100
                padding: 0
                topPadding: 0
                bottomPadding: 0
                leftPadding: 0
                rightPadding: 0
                background: Item {}
                contentItem: TracksTableViewCell {
                    songLabel: row.songLabel
                    trackNumberLabel: row.trackNumberLabel
                    durationLabel: row.durationLabel
                    writtenByLabel: row.writtenByLabel
                    coverSource: "image://cover/" + controller.vinylRowId + "/back"
                }
                onClicked: controller.rowSelected(index)
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
                    TapHandler { onTapped: controller.deleteRow(row.index) }
                }
            }
        }
    }
}
