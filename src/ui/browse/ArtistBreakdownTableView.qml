import QtQuick
import Platterbox

// The records of the artist picked in the group lists.
BreakdownTableScreen {
    controller: breakdown
    onShareClicked: breakdown.ShareArtistButtonClicked()

    ArtistBreakdownTableViewController {
        id: breakdown
    }
}
