import QtQuick
import Platterbox

// The light rounded background of list cells, a little darker under the pointer.
Rectangle {
    property bool hovered: false
    property color fillColor: Qt.hsva(0.5, 0.06, 0.96, 1)

    radius: 10
    color: hovered ? Qt.darker(fillColor, 1.06) : fillColor
    border.width: 2
    border.color: "black"
}
