import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Controls.Material
import Platterbox

// A screen of the navigation stack: a title bar with a back button and room for actions
// on the right (put them in `actions`). Escape and Alt+Left press the back button; while a
// picker of the screen is open (`sheetOpen`), Escape asks to close it instead.
Page {
    id: root

    property alias actions: actionRow.data
    property bool showBack: StackView.view ? StackView.view.depth > 1 : false
    property bool sheetOpen: false

    signal closeSheetRequested()

    // Called each time the screen becomes the top of the stack again.
    signal appeared()
    // Called each time another screen covers it or it leaves the stack.
    signal disappeared()

    StackView.onActivated: appeared()
    StackView.onDeactivated: disappeared()

    header: ToolBar {
        Material.background: Theme.toolbar
        Material.foreground: Theme.toolbarText

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 4
            anchors.rightMargin: 4
            spacing: 0

            ToolbarButton {
                objectName: "BackButton"
                visible: root.showBack
                text: "\u2039"
                font.pixelSize: 30
                Accessible.name: qsTr("Back")
                shortcut: root.sheetOpen ? ["Alt+Left"] : [StandardKey.Cancel, "Alt+Left"]
                onClicked: AppDelegate.navigator.back()
            }
            Label {
                text: root.title
                font.pixelSize: 18
                font.bold: true
                // A long title shrinks to fit beside the buttons before it is cut.
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 13
                elide: Label.ElideRight
                horizontalAlignment: Qt.AlignHCenter
                Layout.fillWidth: true
                Layout.leftMargin: root.showBack ? 0 : 12
            }
            Row {
                id: actionRow
                spacing: 0
            }
        }
    }

    Shortcut {
        sequence: StandardKey.Cancel
        enabled: root.sheetOpen && root.visible
        onActivated: root.closeSheetRequested()
    }
}
