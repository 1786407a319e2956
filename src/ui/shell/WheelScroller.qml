import QtQuick
import Platterbox

// A mouse-wheel notch scrolls `view` by the user's number of wheel lines at once. (Qt 6.4
// turns each notch into a fling that runs on for a page or more; a touchpad's pixel scrolling
// is left to the view.)
WheelHandler {
    id: root

    required property Flickable view

    acceptedDevices: PointerDevice.Mouse
    orientation: Qt.Vertical

    onWheel: (event) => {
        const top = view.originY - view.topMargin
        const bottom = Math.max(top, view.originY + view.contentHeight + view.bottomMargin - view.height)
        const step = event.angleDelta.y / 120 * Qt.styleHints.wheelScrollLines * Adaptive.wheelLine
        view.cancelFlick()
        view.contentY = Math.max(top, Math.min(bottom, view.contentY - step))
        event.accepted = true
    }
}
