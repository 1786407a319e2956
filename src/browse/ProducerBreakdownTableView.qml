import QtQuick
import Platterbox

// The records of the producer picked in the group lists.
BreakdownTableScreen {
    controller: ProducerBreakdownTableViewController {}
    onShareClicked: controller.ShareProducerButtonClicked()
}
