pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtMultimedia
import Platterbox

// The camera, watching for the barcode on a sleeve: the first code read is handed back through
// found() and the page closes.
Popup {
    id: root

    signal found(string digits)

    parent: Overlay.overlay
    x: 0
    y: 0
    width: parent ? parent.width : 390
    height: parent ? parent.height : 844
    modal: true
    padding: 0
    closePolicy: Popup.CloseOnEscape
    background: Rectangle { color: Theme.viewfinder }

    Loader {
        anchors.fill: parent
        active: root.visible
        sourceComponent: ColumnLayout {
            spacing: 0
            CaptureSession {
                camera: Camera { active: true }
                videoOutput: output
            }
            BarcodeScanner {
                videoSink: output.videoSink
                onFound: (digits, format) => {
                    root.close()
                    root.found(digits)
                }
            }
            VideoOutput {
                id: output
                Layout.fillWidth: true
                Layout.fillHeight: true
                Label {
                    anchors.horizontalCenter: parent.horizontalCenter
                    anchors.bottom: parent.bottom
                    anchors.bottomMargin: 24
                    text: qsTr("Hold the barcode on the sleeve in view")
                    color: Theme.onViewfinder
                    font.pixelSize: 16
                }
            }
            StyledButton {
                text: qsTr("Cancel")
                Layout.fillWidth: true
                Layout.margins: 16
                onClicked: root.close()
            }
        }
    }
}
