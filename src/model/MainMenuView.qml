pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The main menu: the record picture, the app's name and the red-bordered control button
// that unfolds the menu buttons.
ScreenPage {
    id: root

    title: "Platterbox"
    onAppeared: controller.viewWillAppear()

    MainMenuViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    Flickable {
        anchors.fill: parent
        contentHeight: column.implicitHeight + 40
        clip: true

        ColumnLayout {
            id: column
            // Phone width, centred on a tablet or desktop.
            width: Math.min(parent.width - 48, 520)
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.top: parent.top
            anchors.topMargin: 24
            spacing: 10

            Image {
                source: "qrc:/resources/black-vinyl-record.png"
                sourceSize: Qt.size(200, 200)
                Layout.preferredWidth: controller.menuUnfolded ? 90 : 200
                Layout.preferredHeight: Layout.preferredWidth
                Layout.alignment: Qt.AlignHCenter
                fillMode: Image.PreserveAspectFit
                Behavior on Layout.preferredWidth { NumberAnimation { duration: 300 } }
            }
            Label {
                text: "Your vinyl collection"
                font.pixelSize: 16
                color: "#555555"
                Layout.alignment: Qt.AlignHCenter
                Layout.bottomMargin: 8
            }

            StyledButton {
                text: controller.menuUnfolded ? "Close Menu" : "Menu"
                borderColor: "red"
                font.bold: true
                Layout.fillWidth: true
                onClicked: controller.HandleButtonClick()
            }

            Repeater {
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
                    Layout.preferredHeight: controller.menuUnfolded ? implicitHeight : 0
                    Behavior on opacity { NumberAnimation { duration: 300 } }
                    Behavior on Layout.preferredHeight { NumberAnimation { duration: 300 } }
                    onClicked: controller.open(modelData.name)
                }
            }
        }
    }
}
