pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// What the collection is made of and worth: its figures, then one card per chart, side by side
// where the window has room for them.
ScreenPage {
    id: root

    title: qsTr("Statistics")
    onAppeared: controller.viewWillAppear()

    StatisticsViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    readonly property int columns: Adaptive.isDesktop(width) ? 3 : Adaptive.isPhone(width) ? 1 : 2

    BusyIndicator {
        anchors.centerIn: parent
        running: controller.loading && controller.charts.length === 0
        visible: running
    }

    Flickable {
        anchors.fill: parent
        contentHeight: grid.implicitHeight + 24
        clip: true

        GridLayout {
            id: grid
            x: 12
            y: 12
            width: parent.width - 24
            columns: root.columns
            rowSpacing: 12
            columnSpacing: 12

            Card {
                objectName: "FiguresCard"
                Layout.fillWidth: true
                Layout.columnSpan: root.columns
                implicitHeight: figures.implicitHeight + 20

                GridLayout {
                    id: figures
                    anchors.fill: parent
                    anchors.margins: 10
                    columns: root.columns === 1 ? 2 : root.columns === 2 ? 3 : 6
                    rowSpacing: 6
                    columnSpacing: 12
                    Repeater {
                        model: controller.figures
                        delegate: ColumnLayout {
                            id: figure
                            required property var modelData
                            spacing: 0
                            Layout.fillWidth: true
                            Layout.preferredWidth: 1
                            Label {
                                text: figure.modelData.title
                                color: Theme.secondaryText
                                font.pixelSize: 13
                            }
                            Label {
                                objectName: "Figure" + figure.modelData.title.replace(" ", "")
                                text: figure.modelData.text
                                font.pixelSize: 18
                                font.bold: true
                                // A large amount in a narrow column shrinks before it is cut.
                                fontSizeMode: Text.HorizontalFit
                                minimumPixelSize: 12
                                elide: Label.ElideRight
                                Layout.fillWidth: true
                            }
                        }
                    }
                }
            }

            Repeater {
                model: controller.charts
                delegate: ChartCard {
                    id: card
                    required property var modelData
                    objectName: modelData.name
                    title: modelData.title
                    backText: modelData.canGoBack ? qsTr("All Decades") : ""
                    // Bars of names get a row each; cards beside one another share the row's height.
                    implicitHeight: modelData.look === "bars" ? Math.max(320, 70 + 26 * modelData.labels.length) : 320
                    Layout.fillHeight: true
                    onBackClicked: controller.showAllDecades()
                    openChoices: card.modelData.tappable ? card.modelData.labels : []
                    onOpenChosen: (index) => controller.barTapped(card.modelData.name, index)

                    content: Chart {
                        anchors.fill: parent
                        look: card.modelData.look
                        labels: card.modelData.labels
                        values: card.modelData.values
                        points: card.modelData.points ?? []
                        currency: card.modelData.currency
                        color: card.modelData.currency ? Theme.chartAmount : Theme.chartCount
                        onTapped: (index) => controller.barTapped(card.modelData.name, index)
                    }
                }
            }
        }
    }
}
