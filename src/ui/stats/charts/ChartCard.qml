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
    // The entries a tap on the chart opens, offered in a menu too: the way for the keyboard and
    // a screen reader, which cannot reach a bar. Empty when the chart opens nothing.
    property var openChoices: []

    signal backClicked()
    signal openChosen(int index)

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
            ToolButton {
                objectName: "OpenButton"
                visible: root.openChoices.length > 0
                text: "\u2026"
                font.pixelSize: 15
                Accessible.name: qsTr("Open an entry of %1").arg(root.title)
                Layout.preferredHeight: 28
                onClicked: choices.open()

                Menu {
                    id: choices
                    y: parent.height
                    Repeater {
                        model: root.openChoices
                        delegate: MenuItem {
                            required property string modelData
                            required property int index
                            text: modelData
                            onTriggered: root.openChosen(index)
                        }
                    }
                }
            }
        }
        Item {
            id: holder
            Layout.fillWidth: true
            Layout.fillHeight: true
        }
    }
}
