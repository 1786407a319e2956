import QtQuick
import Platterbox

// The records of the year picked in the group lists.
BreakdownTableScreen {
    controller: YearBreakdownTableViewController {}
    onShareClicked: controller.ShareYearButtonClicked()
}
