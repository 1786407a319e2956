pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The tracks of the current record.
ScreenPage {
    id: root

    title: qsTr("Tracks")

    TracksTableViewController {
        id: controller
    }

    onAppeared: controller.viewWillAppear()

    AlertDialog { controller: controller }

    actions: [
        ToolbarButton {
            objectName: "SortButton"
            text: "\u21C5"
            font.pixelSize: 20
            Accessible.name: qsTr("Sort")
            onClicked: controller.SortButtonTapped()
        },
        ToolbarButton {
            objectName: "AddButton"
            text: "+"
            font.pixelSize: 24
            Accessible.name: qsTr("Add Track")
            shortcut: StandardKey.New
            onClicked: controller.AddButtonTapped()
        }
    ]

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        SearchField {
            id: search
            results: list
            placeholderText: controller.searchPlaceholder
            text: controller.searchText
            onTextEdited: controller.searchText = text
            Layout.fillWidth: true
        }

        CardGrid {
            id: list
            objectName: "TrackList"
            model: controller.model
            cardHeight: 108
            // Side by side, the cards keep a gap between them.
            cardInsetX: columns > 1 ? 6 : 0
            searchField: search
            Layout.fillWidth: true
            Layout.fillHeight: true
            onActivated: (index) => controller.rowSelected(index)

            delegate: SwipeRow {
                id: row
                required property int index
                required property string songLabel
                required property string trackNumberLabel
                required property string durationLabel
                required property string writtenByLabel
                required property string accessibleLabel

                itemName: songLabel
                Accessible.name: accessibleLabel
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
                contentItem: TracksTableViewCell {
                    songLabel: row.songLabel
                    trackNumberLabel: row.trackNumberLabel
                    durationLabel: row.durationLabel
                    writtenByLabel: row.writtenByLabel
                    // The placeholder of a record without a cover is drawn for the variant in use.
                    coverSource: "image://cover/" + controller.vinylRowId + "/back" + (Theme.dark ? "/dark" : "")
                    hovered: row.hovered
                }
                onClicked: {
                    list.currentIndex = index
                    controller.rowSelected(index)
                }
                onDeleteRequested: controller.deleteRow(index)
            }
        }
    }
}
