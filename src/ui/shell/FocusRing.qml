import QtQuick
import QtQuick.Templates as T
import Platterbox

// The mark around the control the keyboard has reached, for controls whose own look shows
// none: `FocusRing { control: root }` inside the control. Shown for keyboard focus only, so a
// tap or a click leaves no ring behind.
Rectangle {
    id: root

    // Templates' Control: a style's own Control type is not the base of its buttons and delegates.
    required property T.Control control
    // Drawn this far outside the control.
    property real gap: 2
    property color ringColor: Theme.focusRing

    x: -gap
    y: -gap
    width: control.width + 2 * gap
    height: control.height + 2 * gap
    z: 10
    radius: 12
    color: Theme.noFill
    border.width: 3
    border.color: ringColor
    visible: control.visualFocus
}
