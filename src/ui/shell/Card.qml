import QtQuick
import Platterbox

// The light rounded background of list cells, a little darker under the pointer.
Rectangle {
    property bool hovered: false
    property color fillColor: Theme.card

    radius: 10
    color: hovered ? Theme.cardHover : fillColor
    border.width: 2
    border.color: Theme.cardBorder
}
