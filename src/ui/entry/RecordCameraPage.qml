import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtMultimedia
import Platterbox

// A full-screen camera: the live picture, "Cancel" and "Take Photo". The photo is written
// to `captureFile` and handed back through captured().
Popup {
    id: root

    property string captureFile

    signal captured(string filePath)
    signal cancelled()

    parent: Overlay.overlay
    x: 0
    y: 0
    width: parent ? parent.width : 390
    height: parent ? parent.height : 844
    modal: true
    padding: 0
    closePolicy: Popup.NoAutoClose
    background: Rectangle { color: Theme.viewfinder }

    Loader {
        id: session
        anchors.fill: parent
        active: root.visible
        sourceComponent: ColumnLayout {
            spacing: 0
            CaptureSession {
                id: capture
                camera: Camera { active: true }
                imageCapture: ImageCapture {
                    id: imageCapture
                    onImageSaved: (requestId, path) => {
                        root.close()
                        root.captured(path)
                    }
                    onErrorOccurred: (requestId, error, message) => {
                        root.close()
                        root.cancelled()
                    }
                }
                videoOutput: output
            }
            VideoOutput {
                id: output
                Layout.fillWidth: true
                Layout.fillHeight: true
            }
            RowLayout {
                Layout.fillWidth: true
                Layout.margins: 16
                StyledButton {
                    text: qsTr("Cancel")
                    Layout.fillWidth: true
                    onClicked: {
                        root.close()
                        root.cancelled()
                    }
                }
                StyledButton {
                    text: qsTr("Take Photo")
                    font.bold: true
                    Layout.fillWidth: true
                    enabled: imageCapture.readyForCapture
                    onClicked: imageCapture.captureToFile(root.captureFile)
                }
            }
        }
    }
}
