pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The main menu: the record picture, the app's name and the red-bordered control button
// that unfolds the menu buttons.
ScreenPage {
    id: root

    title: qsTr("Platterbox")
    onAppeared: controller.viewWillAppear()

    MainMenuViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    // Ctrl+N opens the add screen from here too.
    Shortcut {
        sequence: StandardKey.New
        enabled: root.visible
        onActivated: controller.open("AddButton")
    }

    // The menu buttons in one column on a phone, in two or three beyond it, so the unfolded
    // menu fits the window without scrolling; on a desktop the collection at a glance stands
    // beside them.
    readonly property bool showsGlance: Adaptive.isDesktop(width)
    readonly property int menuColumns: Adaptive.isPhone(width) ? 1 : Adaptive.isDesktop(width) ? 3 : 2

    Flickable {
        id: flick
        objectName: "MenuFlickable"
        anchors.fill: parent
        contentHeight: Math.max(column.implicitHeight, glance.visible ? glance.implicitHeight : 0) + 40
        clip: true

        WheelScroller { view: flick }

        ColumnLayout {
            id: column
            objectName: "MenuColumn"
            // Phone width, centred; wider for the columns of buttons.
            width: Math.min(parent.width - 48 - (glance.visible ? glance.width + 32 : 0),
                            root.menuColumns === 1 ? 520 : root.menuColumns * 300)
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.horizontalCenterOffset: glance.visible ? -(glance.width + 32) / 2 : 0
            anchors.top: parent.top
            anchors.topMargin: 24
            spacing: 10

            Image {
                source: "qrc:/resources/black-vinyl-record.png"
                sourceSize: Qt.size(200, 200)
                Layout.preferredWidth: controller.menuUnfolded ? 72 : 200
                Layout.preferredHeight: Layout.preferredWidth
                Layout.alignment: Qt.AlignHCenter
                fillMode: Image.PreserveAspectFit
                Behavior on Layout.preferredWidth { NumberAnimation { duration: 300 } }
            }
            Label {
                text: qsTr("Your vinyl collection")
                font.pixelSize: 16
                color: Theme.secondaryText
                Layout.alignment: Qt.AlignHCenter
                Layout.bottomMargin: 8
            }
            // A collection that cannot be written says so for as long as it is looked at.
            Label {
                objectName: "ReadOnlyNotice"
                visible: AppDelegate.readOnly
                text: AppDelegate.readOnlyNotice
                wrapMode: Text.Wrap
                color: Theme.warningText
                padding: 10
                background: Rectangle { color: Theme.warningFill; border.color: Theme.warningBorder; radius: 6 }
                Layout.fillWidth: true
                Layout.maximumWidth: 520
                Layout.alignment: Qt.AlignHCenter
            }

            StyledButton {
                objectName: "MenuControlButton"
                text: controller.menuUnfolded ? qsTr("Close Menu") : qsTr("Menu")
                borderColor: Theme.attention
                font.bold: true
                Layout.fillWidth: true
                Layout.maximumWidth: 520
                Layout.alignment: Qt.AlignHCenter
                onClicked: controller.HandleButtonClick()
            }

            GridLayout {
                columns: root.menuColumns
                rowSpacing: 10
                columnSpacing: 10
                Layout.fillWidth: true

                Repeater {
                    id: menuButtons
                    model: controller.menuButtons
                    delegate: StyledButton {
                        id: menuButton
                        required property var modelData
                        required property int index
                        objectName: modelData.name
                        text: modelData.title
                        enabled: modelData.enabled
                        visible: opacity > 0
                        opacity: controller.menuUnfolded ? (enabled ? 1 : 0.4) : 0
                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        // The last button takes what is left of its row.
                        Layout.columnSpan: index === menuButtons.count - 1 ? root.menuColumns - index % root.menuColumns : 1
                        Layout.preferredHeight: controller.menuUnfolded ? implicitHeight : 0
                        Behavior on opacity { NumberAnimation { duration: 300 } }
                        Behavior on Layout.preferredHeight { NumberAnimation { duration: 300 } }
                        onClicked: controller.open(modelData.name)
                    }
                }
            }
        }

        MainMenuGlance {
            id: glance
            objectName: "MainMenuGlance"
            visible: root.showsGlance
            controller: controller
            width: 380
            anchors.left: column.right
            anchors.leftMargin: 32
            anchors.top: parent.top
            anchors.topMargin: 24
        }
    }
}
