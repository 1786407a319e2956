import Platterbox

ConditionFormScreen {
    controller: AddCoverConditionViewController {}
}
