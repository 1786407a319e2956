import QtQuick
import Platterbox

// The records of the year picked in the group lists.
BreakdownTableScreen {
    controller: breakdown
    onShareClicked: breakdown.ShareYearButtonClicked()

    YearBreakdownTableViewController {
        id: breakdown
    }
}
