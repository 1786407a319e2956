pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// One tab of the group lists: search field, group count and the groups.
ColumnLayout {
    id: root

    required property GroupTableViewController controller
    property string nameObjectName: "NameLabel"

    spacing: 0

    SearchField {
        id: search
        placeholderText: root.controller.placeholder
        results: list
        Layout.fillWidth: true
        Layout.leftMargin: 10
        Layout.rightMargin: 10
        onTextChanged: root.controller.updateSearchResults(text)
    }
    ListHeaderLabel {
        objectName: "HeaderLabel"
        text: root.controller.headerText
        font.bold: false
        font.pixelSize: 15
        color: Theme.text
        Layout.fillWidth: true
    }
    CardGrid {
        id: list
        objectName: "GroupList"
        model: root.controller.model
        cardWidth: Adaptive.groupCardWidth
        cardHeight: 60
        searchField: search
        Layout.fillWidth: true
        Layout.fillHeight: true
        onActivated: (index) => root.controller.rowSelected(index)

        delegate: GroupTableViewCell {
            required property int index
            width: list.cellWidth
            height: list.cellHeight
            nameObjectName: root.nameObjectName
            onClicked: {
                list.currentIndex = index
                root.controller.rowSelected(index)
            }
        }
    }
}
