import Platterbox

ConditionFormScreen {
    controller: EditCoverConditionViewController {}
}
