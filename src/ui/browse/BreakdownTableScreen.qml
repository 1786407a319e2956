pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The records of one group: search, count, cards and the value of what is shown. The four
// breakdown screens are this page with their own controller.
ScreenPage {
    id: root

    required property BreakdownTableViewController controller

    signal shareClicked()

    title: controller.title

    function unwound(segue) {
        controller.unwound(segue)
    }
    // Back from a record lent or taken back meanwhile: its card says so.
    onAppeared: controller.viewWillAppear()

    AlertDialog { controller: root.controller }

    actions: [
        ToolbarButton {
            objectName: "SortButton"
            text: root.controller.sortButtonTitle
            onClicked: root.controller.SortButtonTapped()
        },
        ToolbarButton {
            objectName: "PrintButton"
            text: root.controller.shareButtonTitle
            enabled: root.controller.canSharePdf && !root.controller.sharing
            onClicked: root.shareClicked()
        },
        ToolbarButton {
            objectName: "ReportButton"
            text: qsTr("Report")
            toolTip: qsTr("Report of this list")
            shortcut: StandardKey.Print
            // The title keeps its room beside four buttons.
            givesWay: true
            onClicked: AppDelegate.navigator.show("PrintVinylView")
        }
    ]

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        SearchField {
            id: search
            placeholderText: root.controller.placeholder
            results: list
            Layout.fillWidth: true
            Layout.leftMargin: 10
            Layout.rightMargin: 10
            onTextChanged: root.controller.updateSearchResults(text)
        }
        ListHeaderLabel {
            objectName: "HeaderLabel"
            text: root.controller.headerText
            Layout.fillWidth: true
        }
        RecordCardGrid {
            id: list
            model: root.controller.model
            searchField: search
            Layout.fillWidth: true
            Layout.fillHeight: true
            onActivated: (index) => root.controller.rowSelected(index)
            onDeleteRequested: (index) => root.controller.deleteRow(index)
        }
        ProgressPanel {
            objectName: "ShareProgress"
            visible: root.controller.sharing
            title: qsTr("Writing the PDF document")
            countText: root.controller.shareProgressText
            value: root.controller.shareProgress
            Layout.fillWidth: true
            Layout.margins: 10
            onCancelClicked: root.controller.CancelShareButtonTapped()
        }
        Label {
            objectName: "FooterLabel"
            text: root.controller.footerText
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 14
            color: Theme.text
            topPadding: 8
            bottomPadding: 10
            Layout.fillWidth: true
        }
    }
}
