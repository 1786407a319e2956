import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// One track: the record's back cover beside song, number, duration and writer.
Card {
    id: root

    required property string songLabel
    required property string trackNumberLabel
    required property string durationLabel
    required property string writtenByLabel
    property string coverSource


    RowLayout {
        anchors.fill: parent
        anchors.margins: 10
        spacing: 12

        Image {
            objectName: "BackCoverImage"
            source: root.coverSource
            sourceSize.width: 160
            sourceSize.height: 160
            cache: false
            asynchronous: true
            fillMode: Image.PreserveAspectFit
            Layout.preferredWidth: 76
            Layout.preferredHeight: 76
        }
        ColumnLayout {
            spacing: 1
            Layout.fillWidth: true
            Label { text: root.songLabel; font.pixelSize: 16; font.bold: true; elide: Text.ElideRight; Layout.fillWidth: true }
            Label { text: root.trackNumberLabel; font.pixelSize: 13; elide: Text.ElideRight; Layout.fillWidth: true }
            Label { text: root.durationLabel; font.pixelSize: 13; elide: Text.ElideRight; Layout.fillWidth: true }
            Label { text: root.writtenByLabel; font.pixelSize: 13; color: Theme.secondaryText; elide: Text.ElideRight; Layout.fillWidth: true }
        }
    }
}
