import Platterbox

ConditionFormScreen {
    controller: AddVinylConditionViewController {}
}
