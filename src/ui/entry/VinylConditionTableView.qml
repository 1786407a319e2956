import Platterbox

ConditionTableScreen {
    controller: VinylConditionTableViewController {}
}
