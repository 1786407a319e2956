import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The four fields of the add and edit track screens, bound to the screen's controller.
ScreenPage {
    id: root

    required property QtObject controller

    title: controller.title

    AlertDialog { controller: root.controller }

    actions: [
        ToolbarButton {
            objectName: "SaveButton"
            text: "Save"
            shortcut: StandardKey.Save
            onClicked: root.controller.SaveTrack()
        }
    ]

    ColumnLayout {
        width: Adaptive.centred(parent.width, Adaptive.narrowFormWidth, 20)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.topMargin: 20
        spacing: 6

        Label { text: "Track #"; color: Theme.secondaryText }
        TextField {
            objectName: "TrackNumberTextField"
            text: root.controller.trackNumber
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            onTextEdited: root.controller.trackNumber = text
            Layout.fillWidth: true
        }
        Label { text: "Song"; color: Theme.attention }
        TextField {
            objectName: "SongTextField"
            text: root.controller.song
            onTextEdited: root.controller.song = text
            Layout.fillWidth: true
        }
        Label { text: "Duration"; color: Theme.secondaryText }
        TextField {
            objectName: "DurationTextField"
            text: root.controller.duration
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            onTextEdited: root.controller.duration = text
            Layout.fillWidth: true
        }
        Label { text: "Written By"; color: Theme.secondaryText }
        TextField {
            objectName: "WrittenByTextField"
            text: root.controller.writtenBy
            onTextEdited: root.controller.writtenBy = text
            Layout.fillWidth: true
        }
    }
}
