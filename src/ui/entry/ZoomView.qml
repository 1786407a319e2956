pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The record's covers, large. Pinch to zoom (no limits, zooms compound) and drag them
// anywhere; the one touched last comes to the front.
ScreenPage {
    id: root

    title: qsTr("Cover Images")
    onAppeared: controller.viewWillAppear()

    actions: [
        ToolbarButton {
            objectName: "ShareButton"
            text: qsTr("Share")
            onClicked: controller.shareButtonClicked()
        }
    ]

    ZoomViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    property int topZ: 1
    // Wider than tall beyond a phone: the two covers stand side by side.
    readonly property bool sideBySide: !Adaptive.isPhone(width) && area.width > area.height

    Label {
        anchors.centerIn: parent
        visible: controller.images.length === 0
        text: qsTr("This record has no cover images.")
        color: Theme.captionText
        font.pixelSize: 16
    }

    Item {
        id: area
        objectName: "ZoomCollectionView"
        anchors.fill: parent
        anchors.margins: 12

        Repeater {
            model: controller.images
            delegate: Image {
                id: cell
                required property string modelData
                required property int index
                objectName: "ZoomImage" + index
                Accessible.role: Accessible.Graphic
                Accessible.name: qsTr("Cover picture %1 of %2").arg(index + 1).arg(controller.images.length)
                source: modelData
                fillMode: Image.PreserveAspectFit
                asynchronous: true
                readonly property int slots: controller.images.length > 1 ? 2 : 1
                width: root.sideBySide ? (area.width - 12 * (slots - 1)) / slots : area.width
                height: root.sideBySide ? area.height : (area.height - 12 * (slots - 1)) / slots
                x: root.sideBySide ? index * (width + 12) : 0
                y: root.sideBySide ? 0 : index * (height + 12)
                transformOrigin: Item.Center

                PinchHandler {
                    minimumScale: -Infinity
                    maximumScale: Infinity
                    minimumRotation: 0
                    maximumRotation: 0
                    onActiveChanged: if (active) cell.z = ++root.topZ
                }
                DragHandler {
                    onActiveChanged: if (active) cell.z = ++root.topZ
                }
            }
        }
    }
}
