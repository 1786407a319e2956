import QtQuick
import Platterbox

// The records of the label picked in the group lists.
BreakdownTableScreen {
    controller: LabelBreakdownTableViewController {}
    onShareClicked: controller.ShareLabelButtonClicked()
}
