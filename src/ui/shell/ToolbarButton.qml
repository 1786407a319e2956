import QtQuick
import QtQuick.Controls
import Platterbox

// A title-bar button, with an optional keyboard shortcut and a tooltip that names it.
ToolButton {
    id: root

    // A key sequence or a list of them (see ButtonShortcut).
    property alias shortcut: keys.keys
    property string toolTip: Accessible.name !== "" ? Accessible.name : text

    // A button that gives way keeps the title its room below desktop widths too.
    property bool givesWay: false
    // On a narrow window the button is as wide as its caption, not a full touch target.
    readonly property bool compact: Adaptive.isNarrow(Window.width) || (givesWay && !Adaptive.isDesktop(Window.width))
    implicitWidth: Math.max(compact ? 0 : implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    leftPadding: compact ? 4 : 6
    rightPadding: compact ? 4 : 6
    // Capitals take a third more room: on a narrow window the title keeps it instead.
    font.capitalization: compact ? Font.MixedCase : Font.AllUppercase

    ToolTip.text: keys.hint(toolTip)
    ToolTip.visible: hovered && ToolTip.text !== ""
    ToolTip.delay: 600

    ButtonShortcut {
        id: keys
        button: root
    }
}
