import QtQuick
import QtQuick.Controls
import Platterbox

// The count line above a list: red bold text on light grey, centred.
Label {
    color: Theme.attention
    font.pixelSize: 13
    font.bold: true
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    topPadding: 6
    bottomPadding: 6
    background: Rectangle { color: Theme.headerFill }
}
