import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// A titled card around one chart. Every chart of the app is drawn by the components of this
// folder, so another chart library would replace only them.
Card {
    id: root

    property string title
    // Shows a "back" link beside the title (a decade's years go back to every decade).
    property string backText
    property alias content: holder.data

    signal backClicked()

    implicitHeight: 300
    Layout.fillWidth: true
    Layout.preferredHeight: implicitHeight

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 8
        spacing: 2

        RowLayout {
            Layout.fillWidth: true
            Layout.preferredHeight: 28
            Label {
                text: root.title
                font.pixelSize: 15
                font.bold: true
                // Beside the back button on a narrow card the title shrinks before it is cut.
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 11
                elide: Label.ElideRight
                Layout.fillWidth: true
            }
            ToolButton {
                visible: root.backText !== ""
                text: root.backText
                font.pixelSize: 13
                Layout.preferredHeight: 28
                onClicked: root.backClicked()
            }
        }
        Item {
            id: holder
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
    }
}
