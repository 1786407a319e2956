import Platterbox

// Adds a track to the current record.
TracksFormScreen {
    controller: AddTracksViewController {}
}
