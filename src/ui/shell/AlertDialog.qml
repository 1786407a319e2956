pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The one alert of every screen: shows what the controller's alert() signal carries and
// hands the pressed button back to the controller.
Dialog {
    id: root

    required property QtObject controller
    property var buttons: [qsTr("OK")]
    property string message

    modal: true
    Overlay.modal: Rectangle { color: Theme.scrim }
    anchors.centerIn: Overlay.overlay
    width: Math.min(parent ? parent.width - 48 : 320, 340)
    closePolicy: Popup.NoAutoClose

    Connections {
        target: root.controller
        function onAlert(title: string, message: string, buttons: list<string>) {
            root.title = title
            root.message = message
            root.buttons = buttons.length > 0 ? buttons : [qsTr("OK")]
            root.open()
        }
    }

    contentItem: Label {
        text: root.message
        wrapMode: Text.Wrap
        font.pixelSize: 15
    }

    footer: RowLayout {
        spacing: 8
        Item { Layout.fillWidth: true }
        Repeater {
            model: root.buttons
            delegate: Button {
                required property string modelData
                required property int index
                text: modelData
                flat: true
                font.bold: index === root.buttons.length - 1
                Layout.bottomMargin: 8
                Layout.rightMargin: index === root.buttons.length - 1 ? 12 : 0
                onClicked: {
                    root.close()
                    root.controller.answerAlert(index)
                }
            }
        }
    }
}
