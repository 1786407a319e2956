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
            text: qsTr("Save")
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

        Label { text: qsTr("Track #"); color: Theme.secondaryText }
        TextField {
            Accessible.name: qsTr("Track #")
            objectName: "TrackNumberTextField"
            text: root.controller.trackNumber
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            onTextEdited: root.controller.trackNumber = text
            Layout.fillWidth: true
        }
        Label { text: qsTr("Song"); color: Theme.attention }
        TextField {
            Accessible.name: qsTr("Song")
            objectName: "SongTextField"
            text: root.controller.song
            onTextEdited: root.controller.song = text
            Layout.fillWidth: true
        }
        Label { text: qsTr("Duration"); color: Theme.secondaryText }
        TextField {
            Accessible.name: qsTr("Duration")
            objectName: "DurationTextField"
            text: root.controller.duration
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            onTextEdited: root.controller.duration = text
            Layout.fillWidth: true
        }
        Label { text: qsTr("Written By"); color: Theme.secondaryText }
        TextField {
            Accessible.name: qsTr("Written By")
            objectName: "WrittenByTextField"
            text: root.controller.writtenBy
            onTextEdited: root.controller.writtenBy = text
            Layout.fillWidth: true
        }
    }
}
