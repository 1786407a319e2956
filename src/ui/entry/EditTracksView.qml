import Platterbox

// Edits the track picked in the track list.
TracksFormScreen {
    controller: EditTracksViewController {}
}
