pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The albums sought, sought first first; a search narrows them, a row opens the album's form and
// its cross takes it off the wantlist.
ScreenPage {
    id: root

    title: qsTr("Wantlist")
    onAppeared: controller.viewWillAppear()

    function unwound(segue: string) {
        controller.viewWillAppear()
    }

    actions: [
        ToolbarButton {
            objectName: "AddWantedButton"
            text: qsTr("Add")
            shortcut: StandardKey.New
            font.bold: true
            onClicked: controller.addClicked()
        }
    ]

    WantlistViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    ColumnLayout {
        anchors.fill: parent
        anchors.topMargin: 10
        spacing: 8

        SearchField {
            placeholderText: qsTr("Search album or artist")
            results: list
            Layout.fillWidth: true
            Layout.leftMargin: 12
            Layout.rightMargin: 12
            onTextChanged: controller.searchText = text
        }

        Label {
            objectName: "WantlistSummary"
            text: controller.summary
            font.pixelSize: 15
            color: Theme.secondaryText
            wrapMode: Text.Wrap
            Layout.fillWidth: true
            Layout.maximumWidth: Adaptive.formWidth
            Layout.alignment: Qt.AlignHCenter
            horizontalAlignment: controller.albums.length > 0 ? Text.AlignLeft : Text.AlignHCenter
            Layout.leftMargin: 12
            Layout.rightMargin: 12
        }

        ListView {
            id: list
            objectName: "WantlistList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.maximumWidth: Adaptive.formWidth
            Layout.alignment: Qt.AlignHCenter
            Layout.leftMargin: 12
            Layout.rightMargin: 12
            spacing: 8
            clip: true
            model: controller.albums
            keyNavigationEnabled: true
            activeFocusOnTab: true
            Keys.onReturnPressed: controller.rowPicked(currentIndex)
            Keys.onDeletePressed: controller.deleteRow(currentIndex)

            delegate: Card {
                id: row
                required property var modelData
                required property int index
                objectName: "WantedRow" + index
                width: ListView.view.width
                implicitHeight: lines.implicitHeight + 20
                hovered: pointer.hovered || (ListView.isCurrentItem && list.activeFocus)
                Accessible.role: Accessible.ListItem
                Accessible.name: modelData.accessibleLabel
                Accessible.onPressAction: controller.rowPicked(row.index)
                fillColor: row.modelData.priority === 1 ? Theme.warningFill : Theme.card

                HoverHandler {
                    id: pointer
                }
                TapHandler {
                    onTapped: controller.rowPicked(row.index)
                }

                RowLayout {
                    id: lines
                    anchors.fill: parent
                    anchors.margins: 10
                    spacing: 8
                    ColumnLayout {
                        Layout.fillWidth: true
                        spacing: 2
                        Label {
                            Accessible.ignored: true
                            text: row.modelData.album + " \u2013 " + row.modelData.artist
                            font.pixelSize: 16
                            font.bold: true
                            wrapMode: Text.Wrap
                            Layout.fillWidth: true
                        }
                        Label {
                            Accessible.ignored: true
                            text: row.modelData.detail
                            font.pixelSize: 14
                            color: Theme.text
                            wrapMode: Text.Wrap
                            Layout.fillWidth: true
                        }
                    }
                    ToolButton {
                        objectName: "DeleteWantedButton" + row.index
                        text: "\u2715"
                        Accessible.name: qsTr("Delete %1").arg(row.modelData.album)
                        onClicked: controller.deleteRow(row.index)
                    }
                }
            }
        }
    }
}
