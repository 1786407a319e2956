import QtQuick
import Platterbox

// The records of the label picked in the group lists.
BreakdownTableScreen {
    controller: breakdown
    onShareClicked: breakdown.ShareLabelButtonClicked()

    LabelBreakdownTableViewController {
        id: breakdown
    }
}
