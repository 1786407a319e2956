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
        // A page fills a phone's width and keeps a readable width on a wider window.
        Component.onCompleted: viewer.scaleToWidth(Math.min(root.width, Adaptive.documentWidth), root.height)
    }
}
