import QtQuick
import Platterbox

// The records of the producer picked in the group lists.
BreakdownTableScreen {
    controller: breakdown
    onShareClicked: breakdown.ShareProducerButtonClicked()

    ProducerBreakdownTableViewController {
        id: breakdown
    }
}
