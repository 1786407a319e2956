pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The collection grouped by artist, record label, producer and year: one tab each.
ScreenPage {
    id: root

    readonly property var controllers: [artists, labels, producers, years]
    readonly property var titles: [qsTr("Artists"), qsTr("Record Labels"), qsTr("Producers"), qsTr("Years")]
    property alias currentTab: bar.currentIndex

    title: titles[bar.currentIndex]
    onAppeared: controllers[bar.currentIndex].viewWillAppear()

    ArtistGroupTableViewController { id: artists }
    LabelGroupTableViewController { id: labels }
    ProducerGroupTableViewController { id: producers }
    YearGroupTableViewController { id: years }

    actions: [
        ToolbarButton {
            objectName: "SortButton"
            text: qsTr("Sort")
            onClicked: root.controllers[bar.currentIndex].SortButtonTapped()
        }
    ]

    StackLayout {
        anchors.fill: parent
        currentIndex: bar.currentIndex

        GroupTablePane { controller: artists; nameObjectName: "ArtistLabel" }
        GroupTablePane { controller: labels; nameObjectName: "RecordLabelLabel" }
        GroupTablePane { controller: producers; nameObjectName: "ProducerLabel" }
        GroupTablePane { controller: years; nameObjectName: "YearLabel" }
    }

    footer: TabBar {
        id: bar
        objectName: "GroupTabBar"
        onCurrentIndexChanged: root.controllers[currentIndex].viewWillAppear()

        component GroupTab: TabButton {
            font.capitalization: Font.MixedCase
            font.pixelSize: 15
            // Four tabs share a narrow phone: the captions keep the room.
            leftPadding: Adaptive.isNarrow(root.width) ? 4 : 12
            rightPadding: Adaptive.isNarrow(root.width) ? 4 : 12
        }

        GroupTab { text: qsTr("Artist") }
        GroupTab { text: qsTr("Label") }
        GroupTab { text: qsTr("Producer") }
        GroupTab { text: qsTr("Year") }
    }
}
