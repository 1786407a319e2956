// Not a bound component file: the view creates its highlight in the context of the screen that
// uses it, which a bound component refuses.
import QtQuick
import QtQuick.Controls
import Platterbox

// Every list of the app: one column of cards on a phone, as many columns as fit beyond it.
// The arrow keys move the selection, Enter opens the selected card (activated()) and Delete
// offers its delete, as a swipe does.
GridView {
    id: root

    // Cards are at least this wide in a grid (see Adaptive).
    property real cardWidth: Adaptive.recordCardWidth
    property real cardHeight: 120
    // The space a card keeps inside its cell, where the selection outline is drawn (at most
    // Adaptive.cardInset, which the column count allows for).
    property real cardInsetX: Adaptive.cardInset
    property real cardInsetY: 4
    // Up from the first row goes back to this field.
    property Item searchField: null
    readonly property int columns: Adaptive.columns(width, cardWidth)

    signal activated(int index)

    cellWidth: Math.floor(width / columns)
    cellHeight: cardHeight
    clip: true
    reuseItems: true
    currentIndex: -1
    keyNavigationEnabled: true
    activeFocusOnTab: true
    ScrollBar.vertical: ScrollBar {}

    // The card the keyboard has selected is outlined while the list has the keys.
    highlight: Item {
        z: 2
        visible: root.activeFocus
        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: root.cardInsetX - 2
            anchors.rightMargin: root.cardInsetX - 2
            anchors.topMargin: root.cardInsetY - 2
            anchors.bottomMargin: root.cardInsetY - 2
            radius: 12
            color: Theme.noFill
            border.width: 3
            border.color: Theme.focusRing
        }
    }
    highlightMoveDuration: 0

    WheelScroller { view: root }

    // The first arrow key selects the first card.
    Keys.onPressed: (event) => {
        const arrows = [Qt.Key_Up, Qt.Key_Down, Qt.Key_Left, Qt.Key_Right]
        if (arrows.includes(event.key) && count > 0 && currentIndex < 0) {
            currentIndex = 0
            event.accepted = true
        } else if (event.key === Qt.Key_Up && currentIndex < columns && searchField) {
            searchField.forceActiveFocus()
            event.accepted = true
        } else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && currentIndex >= 0) {
            activated(currentIndex)
            event.accepted = true
        } else if (event.key === Qt.Key_Delete && currentItem && currentItem.swipe !== undefined) {
            currentItem.swipe.open(SwipeDelegate.Right)
            event.accepted = true
        }
    }
}
