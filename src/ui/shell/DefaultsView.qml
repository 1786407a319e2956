import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// Settings: the default date, the look of the release-date picker and the window's appearance.
ScreenPage {
    id: root

    title: qsTr("Settings")

    // Opens the date picker under the default-date field (the tour opens it too).
    property bool pickerOpen: false

    sheetOpen: pickerOpen
    onCloseSheetRequested: pickerOpen = false

    DefaultsViewController {
        id: controller
        onEndEditing: root.pickerOpen = false
    }

    AlertDialog { controller: controller }

    MouseArea {
        anchors.fill: parent
        onClicked: root.pickerOpen = false
    }

    Flickable {
        id: flick
        anchors.fill: parent
        contentHeight: form.implicitHeight + (root.pickerOpen ? picker.height : 0) + 40
        clip: true

        WheelScroller { view: flick }

        ColumnLayout {
            id: form
            width: Adaptive.centred(parent.width, Adaptive.narrowFormWidth, 20)
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.top: parent.top
            anchors.topMargin: 20
            spacing: 14

            Label { text: qsTr("Release Date"); font.pixelSize: 13; font.capitalization: Font.AllUppercase; color: Theme.captionText }

            RowLayout {
                Layout.fillWidth: true
                Label { text: qsTr("Use a Default Date"); font.pixelSize: 17; Layout.fillWidth: true }
                Switch {
                    objectName: "DefaultDateSwitch"
                    Accessible.name: qsTr("Use a Default Date")
                    checked: controller.defaultDateSwitch
                    onToggled: controller.DefaultDateSwitchChanged(checked)
                }
            }

            Label {
                objectName: "DefaultDateLabel"
                visible: controller.dateFieldVisible
                text: qsTr("Default Date")
                font.pixelSize: 15
            }
            TextField {
                id: dateField
                objectName: "DefaultDateTextField"
                visible: controller.dateFieldVisible
                text: controller.dateText
                placeholderText: qsTr("Tap to choose a date")
                Accessible.name: qsTr("Default Date")
                Keys.onSpacePressed: root.pickerOpen = true
                readOnly: true
                font.pixelSize: 17
                Layout.fillWidth: true
                background: Rectangle { radius: 5; border.width: 1; border.color: Theme.fieldBorder; color: Theme.field }
                leftPadding: 10
                MouseArea {
                    anchors.fill: parent
                    onClicked: root.pickerOpen = true
                }
            }

            Label {
                objectName: "SelectDPLabel"
                text: qsTr("Date Picker Style")
                font.pixelSize: 13
                font.capitalization: Font.AllUppercase
                color: Theme.captionText
                Layout.topMargin: 12
            }
            RowLayout {
                Layout.fillWidth: true
                Label { objectName: "UseDateWheelLabel"; text: qsTr("Wheels"); font.pixelSize: 17; Layout.fillWidth: true }
                Switch {
                    objectName: "DateWheelSwitch"
                    Accessible.name: qsTr("Wheels")
                    checked: controller.dateWheelSwitch
                    onToggled: controller.DateWheelSwitchChanged(checked)
                }
            }
            RowLayout {
                Layout.fillWidth: true
                Label { objectName: "UseCompactDateLabel"; text: qsTr("Compact"); font.pixelSize: 17; Layout.fillWidth: true }
                Switch {
                    objectName: "DateCompactSwitch"
                    Accessible.name: qsTr("Compact")
                    checked: controller.dateCompactSwitch
                    onToggled: controller.DateCompactSwitchChanged(checked)
                }
            }
            RowLayout {
                Layout.fillWidth: true
                Label { objectName: "UseInlineDateLabel"; text: qsTr("Inline Calendar"); font.pixelSize: 17; Layout.fillWidth: true }
                Switch {
                    objectName: "DateInlineSwitch"
                    Accessible.name: qsTr("Inline Calendar")
                    checked: controller.dateInlineSwitch
                    onToggled: controller.DateInlineSwitchChanged(checked)
                }
            }
            Label {
                text: qsTr("The style last switched on stays in use for release dates.")
                wrapMode: Text.Wrap
                color: Theme.captionText
                font.pixelSize: 13
                Layout.fillWidth: true
            }

            RowLayout {
                Layout.fillWidth: true
                Layout.topMargin: 12
                Label { text: qsTr("Appearance"); font.pixelSize: 17; Layout.fillWidth: true }
                ComboBox {
                    objectName: "AppearanceBox"
                    model: [qsTr("Light"), qsTr("Dark"), qsTr("As the desktop")]
                    currentIndex: controller.appearance
                    implicitContentWidthPolicy: ComboBox.WidestText
                    Accessible.name: qsTr("Appearance")
                    onActivated: (index) => controller.appearanceChosen(index)
                }
            }
        }
    }

    DatePickerPanel {
        id: picker
        visible: root.pickerOpen
        style: controller.pickerStyle
        todayFirst: false
        readonly property rect place: Adaptive.pickerRect(parent, dateField, height, flick.contentY)
        x: place.x
        y: place.y
        width: place.width
        onPicked: (value) => controller.dateChanged(value)
        onDoneClicked: (value) => controller.doneClick(value)
        onTodayClicked: controller.todayClick()
    }
}
