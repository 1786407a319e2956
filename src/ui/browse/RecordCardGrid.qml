pragma ComponentBehavior: Bound
import QtQuick
import Platterbox

// The record cards of the collection list and the breakdown lists: a click or Enter opens a
// card (activated()), its delete asks deleteRequested().
CardGrid {
    id: root

    signal deleteRequested(int index)

    // In a cell narrower than 380 px each of a card's lines may take two: the card grows to
    // show them whole.
    cardHeight: cellWidth < 380 ? 176 : 120

    delegate: ListVinylTableViewCell {
        required property int index
        width: root.cellWidth
        height: root.cellHeight
        onPicked: {
            root.currentIndex = index
            root.activated(index)
        }
        onDeleteRequested: root.deleteRequested(index)
    }
}
