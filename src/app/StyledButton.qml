import QtQuick
import QtQuick.Controls
import Platterbox

// The app's button look: corner radius 10, a 2-pixel border (black unless told otherwise).
Button {
    id: root

    property color borderColor: "black"
    property color fillColor: "white"

    implicitHeight: 48
    font.pixelSize: 17
    opacity: enabled ? 1 : 0.4

    contentItem: Label {
        text: root.text
        font: root.font
        color: "black"
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    background: Rectangle {
        radius: 10
        border.width: 2
        border.color: root.borderColor
        color: root.down ? Qt.darker(root.fillColor, 1.1) : root.fillColor
    }
}
