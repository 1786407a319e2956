import Platterbox

ConditionFormScreen {
    controller: EditVinylConditionViewController {}
}
