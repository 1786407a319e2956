import Platterbox

ConditionTableScreen {
    controller: CoverConditionTableViewController {}
}
