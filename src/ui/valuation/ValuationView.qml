pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// What the collection is worth: copies and total value, the records with their values, web
// look-ups for the picked album and a new value for it.
ScreenPage {
    id: root

    title: "Valuation"

    actions: [
        ToolbarButton {
            objectName: "ShareButton"
            text: "Share"
            onClicked: controller.shareButtonClicked()
        }
    ]

    ValuationViewController {
        id: controller
    }

    AlertDialog { controller: controller }

    ColumnLayout {
        anchors.fill: parent
        anchors.topMargin: 8
        spacing: 6

        GridLayout {
            columns: 2
            columnSpacing: 8
            rowSpacing: 4
            Layout.fillWidth: true
            Layout.maximumWidth: Adaptive.formWidth
            Layout.alignment: Qt.AlignHCenter
            Layout.leftMargin: 12
            Layout.rightMargin: 12

            Label { text: "Records held"; font.pixelSize: 14 }
            Label { text: "Total value"; font.pixelSize: 14 }
            TextField {
                objectName: "QuantityTextField"
                text: controller.quantityText
                readOnly: true
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
            }
            TextField {
                objectName: "TotalValueTextField"
                text: controller.totalValueText
                readOnly: true
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
            }
        }

        CardGrid {
            id: table
            objectName: "ValueTableView"
            model: controller.model
            cardHeight: 112
            Layout.fillWidth: true
            Layout.fillHeight: true
            onActivated: (index) => controller.rowSelected(index)

            delegate: ValuationTableViewCell {
                required property int index
                width: table.cellWidth
                height: table.cellHeight
                selected: index === controller.selectedRow
                onClicked: {
                    table.currentIndex = index
                    controller.rowSelected(index)
                }
            }
        }

        ColumnLayout {
            spacing: 6
            Layout.fillWidth: true
            Layout.maximumWidth: Adaptive.formWidth
            Layout.alignment: Qt.AlignHCenter
            Layout.leftMargin: 12
            Layout.rightMargin: 12
            Layout.bottomMargin: 10

            TextField {
                objectName: "NameTextField"
                placeholderText: "Album name"
                text: controller.nameText
                onTextEdited: controller.nameText = text
                Layout.fillWidth: true
            }
            Label {
                objectName: "LastQuoteLabel"
                visible: text !== ""
                text: controller.lastQuoteText
                color: Theme.secondaryText
                font.pixelSize: 13
            }
            RowLayout {
                spacing: 6
                Layout.fillWidth: true

                StyledButton {
                    objectName: "SearchButton"
                    text: "Search Web"
                    font.pixelSize: 14
                    Layout.fillWidth: true
                    onClicked: controller.FindValueOnWeb()
                }
                StyledButton {
                    objectName: "PopsikeButton"
                    text: "Popsike"
                    font.pixelSize: 14
                    Layout.fillWidth: true
                    onClicked: controller.PopsikePriceGuide()
                }
                StyledButton {
                    objectName: "ValueyourmusicButton"
                    text: "ValueYourMusic"
                    font.pixelSize: 14
                    Layout.fillWidth: true
                    onClicked: controller.ValueYourMusicPriceGuide()
                }
            }
            RowLayout {
                spacing: 6
                Layout.fillWidth: true

                TextField {
                    objectName: "NewValueTextField"
                    placeholderText: "New value"
                    inputMethodHints: Qt.ImhFormattedNumbersOnly
                    validator: RegularExpressionValidator { regularExpression: controller.typedValuePattern }
                    text: controller.newValueText
                    onTextEdited: controller.newValueText = text
                    Layout.fillWidth: true
                }
                StyledButton {
                    objectName: "SaveButton"
                    text: "Save"
                    toolTip: "Save the new value"
                    shortcut: StandardKey.Save
                    enabled: controller.saveEnabled
                    fillColor: enabled ? Theme.successFill : Theme.disabledFill
                    Layout.preferredWidth: 110
                    onClicked: controller.SaveNewCardButtonClicked()
                }
            }
        }
    }
}
