import QtQuick
import QtQuick.Controls
import Platterbox

// The app's button look: corner radius 10, a 2-pixel border (black unless told otherwise),
// tinted under the pointer and more when held down. An optional keyboard shortcut is named in its tooltip.
Button {
    id: root

    property color borderColor: Theme.cardBorder
    property color fillColor: Theme.surface
    // A key sequence or a list of them (see ButtonShortcut).
    property alias shortcut: keys.keys
    property string toolTip

    implicitHeight: 48
    font.pixelSize: 17
    opacity: enabled ? 1 : 0.4

    ToolTip.text: keys.hint(toolTip !== "" ? toolTip : (keys.nativeText !== "" ? text : ""))
    ToolTip.visible: hovered && ToolTip.text !== ""
    ToolTip.delay: 600

    ButtonShortcut {
        id: keys
        button: root
    }
    FocusRing { control: root }

    contentItem: Label {
        text: root.text
        font: root.font
        color: Theme.text
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        // Side by side on a narrow phone a caption shrinks to fit before it is cut.
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 11
        elide: Text.ElideRight
    }
    background: Rectangle {
        radius: 10
        border.width: 2
        border.color: root.borderColor
        color: root.down ? Theme.pressed(root.fillColor) : root.hovered ? Theme.hovered(root.fillColor) : root.fillColor
    }
}
