pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// What the collection is worth: copies and total value, the records with their values, web
// look-ups for the picked album and a new value for it.
ScreenPage {
    id: root

    title: qsTr("Valuation")

    actions: [
        ToolbarButton {
            objectName: "ShareButton"
            text: qsTr("Share")
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

            Label { text: qsTr("Records held"); font.pixelSize: 14 }
            Label { text: qsTr("Total value"); font.pixelSize: 14 }
            TextField {
                Accessible.name: qsTr("Records held")
                objectName: "QuantityTextField"
                text: controller.quantityText
                readOnly: true
                horizontalAlignment: Text.AlignHCenter
                Layout.fillWidth: true
            }
            TextField {
                Accessible.name: qsTr("Total value")
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
                Accessible.name: placeholderText
                objectName: "NameTextField"
                placeholderText: qsTr("Album name")
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
                    text: qsTr("Search Web")
                    font.pixelSize: 14
                    Layout.fillWidth: true
                    onClicked: controller.FindValueOnWeb()
                }
                StyledButton {
                    objectName: "PopsikeButton"
                    text: qsTr("Popsike")
                    font.pixelSize: 14
                    Layout.fillWidth: true
                    onClicked: controller.PopsikePriceGuide()
                }
                StyledButton {
                    objectName: "ValueyourmusicButton"
                    text: qsTr("ValueYourMusic")
                    font.pixelSize: 14
                    Layout.fillWidth: true
                    onClicked: controller.ValueYourMusicPriceGuide()
                }
            }
            RowLayout {
                spacing: 6
                Layout.fillWidth: true

                TextField {
                    Accessible.name: placeholderText
                    objectName: "NewValueTextField"
                    placeholderText: qsTr("New value")
                    inputMethodHints: Qt.ImhFormattedNumbersOnly
                    validator: RegularExpressionValidator { regularExpression: controller.typedValuePattern }
                    text: controller.newValueText
                    onTextEdited: controller.newValueText = text
                    Layout.fillWidth: true
                }
                StyledButton {
                    objectName: "SaveButton"
                    text: qsTr("Save")
                    toolTip: qsTr("Save the new value")
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
