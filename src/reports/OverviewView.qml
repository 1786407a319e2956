import QtQuick
import QtQuick.Controls
import QtQuick.Pdf
import Platterbox

// The app's guide in a PDF viewer that fits the pages to the screen's width.
ScreenPage {
    id: root

    title: controller.title

    OverviewViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    PdfDocument {
        id: overview
        source: controller.documentSource
    }

    PdfMultiPageView {
        id: viewer
        objectName: "OverviewPdfView"
        anchors.fill: parent
        document: overview
        Component.onCompleted: viewer.scaleToWidth(root.width, root.height)
    }
}
