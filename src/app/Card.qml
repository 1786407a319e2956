import QtQuick
import Platterbox

// The light rounded background of list cells.
Rectangle {
    radius: 10
    color: Qt.hsva(0.5, 0.06, 0.96, 1)
}
