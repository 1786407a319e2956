pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The printed report: the records of the screen it was opened from, page by page as they
// print, with the rebuild and print buttons. Pages appear while they are laid out.
ScreenPage {
    id: root

    title: controller.title

    PrintVinylViewController {
        id: controller
    }

    AlertDialog { objectName: "alert"; controller: controller }

    // A new report is read from its title.
    Connections {
        target: controller
        function onReportChanged() {
            fileTextView.positionViewAtBeginning()
        }
    }

    ColumnLayout {
        width: Adaptive.centred(parent.width, Adaptive.documentWidth, 12)
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.margins: 12
        spacing: 10

        Rectangle {
            radius: 5
            border.width: 1
            border.color: Theme.fieldBorder
            color: Theme.headerFill
            clip: true
            Layout.fillWidth: true
            Layout.fillHeight: true

            ListView {
                id: fileTextView
                objectName: "FileTextView"
                anchors.fill: parent
                anchors.margins: 8
                spacing: 8
                model: controller.pages
                ScrollIndicator.vertical: ScrollIndicator {}
                WheelScroller { view: fileTextView }

                delegate: Rectangle {
                    id: page
                    required property string pageSource
                    required property int pageNumber

                    width: ListView.view.width
                    // An A4 page: 595.2 by 841.8 points.
                    height: Math.round(width * 841.8 / 595.2)
                    color: Theme.paper
                    border.width: 1
                    border.color: Theme.paperBorder

                    Image {
                        Accessible.role: Accessible.Graphic
                        Accessible.name: qsTr("Page %1 of the report").arg(page.pageNumber)
                        anchors.fill: parent
                        anchors.margins: 1
                        source: page.pageSource
                        sourceSize.width: Math.round(width * Screen.devicePixelRatio)
                        asynchronous: true
                        // Pages are drawn again when scrolled back to; none is kept.
                        cache: false
                    }
                    Label {
                        anchors.right: parent.right
                        anchors.bottom: parent.bottom
                        anchors.margins: 6
                        text: page.pageNumber
                        font.pixelSize: 11
                        color: Theme.secondaryText
                    }
                }
            }
        }
        ProgressPanel {
            objectName: "ReportProgress"
            visible: controller.busy
            title: controller.progressTitle
            countText: controller.progressText
            value: controller.progress
            Layout.fillWidth: true
            onCancelClicked: controller.CancelButtonTapped()
        }
        RowLayout {
            spacing: 12
            Layout.fillWidth: true

            StyledButton {
                objectName: "CreateFileButton"
                text: qsTr("Rebuild")
                Layout.fillWidth: true
                onClicked: controller.CreateFileClick()
            }
            StyledButton {
                objectName: "PrintButton"
                text: qsTr("Print")
                shortcut: StandardKey.Print
                visible: controller.printButtonVisible
                enabled: !controller.busy
                Layout.fillWidth: true
                onClicked: controller.EmailFileClick()
            }
        }
    }
}
