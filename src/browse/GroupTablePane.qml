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

    TextField {
        objectName: "SearchField"
        placeholderText: root.controller.placeholder
        inputMethodHints: Qt.ImhNoPredictiveText
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
        color: "#333333"
        Layout.fillWidth: true
    }
    ListView {
        id: list
        clip: true
        model: root.controller.model
        Layout.fillWidth: true
        Layout.fillHeight: true
        ScrollIndicator.vertical: ScrollIndicator {}

        delegate: GroupTableViewCell {
            required property int index
            width: list.width
            nameObjectName: root.nameObjectName
            onClicked: root.controller.rowSelected(index)
        }
    }
}
