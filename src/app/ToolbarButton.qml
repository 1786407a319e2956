import QtQuick
import QtQuick.Controls
import Platterbox

// A title-bar button, with an optional keyboard shortcut and a tooltip that names it.
ToolButton {
    id: root

    // A key sequence or a list of them (see ButtonShortcut).
    property alias shortcut: keys.keys
    property string toolTip: Accessible.name !== "" ? Accessible.name : text

    ToolTip.text: keys.hint(toolTip)
    ToolTip.visible: hovered && ToolTip.text !== ""
    ToolTip.delay: 600

    ButtonShortcut {
        id: keys
        button: root
    }
}
