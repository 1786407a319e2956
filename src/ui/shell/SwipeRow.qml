pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Platterbox

// A row that can be deleted: a swipe to the left opens its red "delete" button, and so do a
// right-click and the Delete key (through CardGrid), so every way offers the same delete.
SwipeDelegate {
    id: root

    // The space the card keeps inside its cell, which the delete button keeps too.
    property real insetX: 0
    property real insetY: 0
    // What the row shows, for the name of its delete action ("Delete Salt Roads").
    property string itemName

    Accessible.role: Accessible.ListItem
    FocusRing { control: root; gap: -root.insetY }

    signal deleteRequested()

    // A recycled row starts closed.
    GridView.onPooled: swipe.close()

    // Takes the right button before the row does: the row would count a right-click as a click
    // and open what it shows.
    MouseArea {
        anchors.fill: parent
        z: 1
        acceptedButtons: Qt.RightButton
        onClicked: root.swipe.open(SwipeDelegate.Right)
    }

    swipe.right: Rectangle {
        width: 96
        height: root.height - 2 * root.insetY
        y: root.insetY
        anchors.right: parent.right
        anchors.rightMargin: root.insetX
        radius: 10
        color: Theme.deleteFill
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Delete %1").arg(root.itemName)
        Accessible.onPressAction: {
            root.swipe.close()
            root.deleteRequested()
        }

        Label {
            anchors.centerIn: parent
            text: qsTr("delete")
            color: Theme.onDelete
            font.pixelSize: 16
        }
        // The row filters the presses on its swipe items (to drag them back); it reports a
        // click on one through this attached signal.
        SwipeDelegate.onClicked: {
            root.swipe.close()
            root.deleteRequested()
        }
    }
}
