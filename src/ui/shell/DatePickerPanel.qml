import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// A date picker in one of three looks, with a "Today" / "Done" bar:
// "wheel" (three wheels), "compact" (a button that opens a calendar), "inline" (a calendar).
// The default look is the wheels.
Pane {
    id: root

    property string style: ""
    property date selectedDate: new Date()
    property bool todayFirst: true

    signal picked(date value)
    signal doneClicked(date value)
    signal todayClicked()

    padding: 0
    background: Rectangle { color: Theme.surface; border.color: Theme.border }

    function setDate(d: date) {
        selectedDate = d
        picked(d)
    }

    // A fresh picker at today's date, whatever was picked before.
    function restart() {
        selectedDate = new Date()
        body.active = false
        body.active = true
    }

    readonly property var monthNames: [qsTr("January"), qsTr("February"), qsTr("March"), qsTr("April"), qsTr("May"), qsTr("June"), qsTr("July"),
                                       qsTr("August"), qsTr("September"), qsTr("October"), qsTr("November"), qsTr("December")]

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        spacing: 0

        // The "Today" / "Done" bar, tinted as the app's pickers are.
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 44
            color: Theme.pickerBand
            RowLayout {
                anchors.fill: parent
                anchors.leftMargin: 8
                anchors.rightMargin: 8
                ToolButton {
                    text: root.todayFirst ? qsTr("Today") : qsTr("Done")
                    onClicked: root.todayFirst ? root.todayClicked() : root.doneClicked(root.selectedDate)
                }
                Item { Layout.fillWidth: true }
                ToolButton {
                    text: root.todayFirst ? qsTr("Done") : qsTr("Today")
                    font.bold: root.todayFirst
                    onClicked: root.todayFirst ? root.doneClicked(root.selectedDate) : root.todayClicked()
                }
            }
        }

        Loader {
            id: body
            Layout.fillWidth: true
            sourceComponent: root.style === "inline" ? calendar : root.style === "compact" ? compact : wheels
        }
    }

    Component {
        id: wheels
        RowLayout {
            spacing: 0
            height: 216
            Tumbler {
                id: monthWheel
                activeFocusOnTab: true
                Accessible.role: Accessible.SpinBox
                Accessible.name: qsTr("Month")
                Layout.fillWidth: true
                Layout.preferredHeight: 216
                model: root.monthNames
                visibleItemCount: 5
                currentIndex: root.selectedDate.getMonth()
                onMovingChanged: if (!moving) root.setDate(new Date(yearWheel.currentIndex + 1900, currentIndex, Math.min(dayWheel.currentIndex + 1, new Date(yearWheel.currentIndex + 1900, currentIndex + 1, 0).getDate())))
            }
            Tumbler {
                id: dayWheel
                activeFocusOnTab: true
                Accessible.role: Accessible.SpinBox
                Accessible.name: qsTr("Day")
                Layout.preferredWidth: 60
                Layout.preferredHeight: 216
                model: 31
                visibleItemCount: 5
                currentIndex: root.selectedDate.getDate() - 1
                delegate: Label {
                    required property int index
                    text: index + 1
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    opacity: 1.0 - Math.abs(Tumbler.displacement) / 3
                }
                onMovingChanged: if (!moving) root.setDate(new Date(yearWheel.currentIndex + 1900, monthWheel.currentIndex, Math.min(currentIndex + 1, new Date(yearWheel.currentIndex + 1900, monthWheel.currentIndex + 1, 0).getDate())))
            }
            Tumbler {
                id: yearWheel
                activeFocusOnTab: true
                Accessible.role: Accessible.SpinBox
                Accessible.name: qsTr("Year")
                Layout.preferredWidth: 80
                Layout.preferredHeight: 216
                model: 250
                visibleItemCount: 5
                currentIndex: root.selectedDate.getFullYear() - 1900
                delegate: Label {
                    required property int index
                    text: index + 1900
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    opacity: 1.0 - Math.abs(Tumbler.displacement) / 3
                }
                onMovingChanged: if (!moving) root.setDate(new Date(currentIndex + 1900, monthWheel.currentIndex, Math.min(dayWheel.currentIndex + 1, new Date(currentIndex + 1900, monthWheel.currentIndex + 1, 0).getDate())))
            }
        }
    }

    Component {
        id: calendar
        ColumnLayout {
            id: cal
            property int month: root.selectedDate.getMonth()
            property int year: root.selectedDate.getFullYear()
            spacing: 0
            RowLayout {
                Layout.fillWidth: true
                ToolButton {
                    text: "\u2039"
                    font.pixelSize: 22
                    Accessible.name: qsTr("Previous month")
                    onClicked: { if (cal.month === 0) { cal.month = 11; cal.year-- } else cal.month-- }
                }
                Label {
                    text: root.monthNames[cal.month] + " " + cal.year
                    font.bold: true
                    horizontalAlignment: Text.AlignHCenter
                    Layout.fillWidth: true
                }
                ToolButton {
                    text: "\u203a"
                    font.pixelSize: 22
                    Accessible.name: qsTr("Next month")
                    onClicked: { if (cal.month === 11) { cal.month = 0; cal.year++ } else cal.month++ }
                }
            }
            DayOfWeekRow {
                Layout.fillWidth: true
                locale: grid.locale
                // A Label, so that the names take the theme's text colour.
                delegate: Label {
                    required property string shortName
                    text: shortName
                    font.bold: true
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
            }
            MonthGrid {
                id: grid
                Layout.fillWidth: true
                // The last week keeps clear of the panel's edge.
                Layout.bottomMargin: 8
                month: cal.month
                year: cal.year
                // One stop of the Tab chain: the arrows move the chosen day by a day or a week,
                // Page Up and Page Down by a month, as in a desktop calendar.
                activeFocusOnTab: true
                Accessible.role: Accessible.Table
                Accessible.name: qsTr("Calendar, chosen day %1").arg(root.selectedDate.toLocaleDateString(Qt.locale(), Locale.LongFormat))
                FocusRing { control: grid }
                function moveBy(days: int, months: int) {
                    const d = root.selectedDate
                    // A month on from the 31st is the month's last day, not a day of the next.
                    const lastDay = new Date(d.getFullYear(), d.getMonth() + months + 1, 0).getDate()
                    const moved = new Date(d.getFullYear(), d.getMonth() + months, Math.min(d.getDate(), lastDay) + days)
                    cal.month = moved.getMonth()
                    cal.year = moved.getFullYear()
                    root.setDate(moved)
                }
                Keys.onPressed: (event) => {
                    const steps = { [Qt.Key_Left]: [-1, 0], [Qt.Key_Right]: [1, 0], [Qt.Key_Up]: [-7, 0],
                                    [Qt.Key_Down]: [7, 0], [Qt.Key_PageUp]: [0, -1], [Qt.Key_PageDown]: [0, 1] }
                    const step = steps[event.key]
                    if (step === undefined)
                        return
                    moveBy(step[0], step[1])
                    event.accepted = true
                }
                delegate: Label {
                    required property var model
                    readonly property bool chosen: model.day === root.selectedDate.getDate()
                                                   && model.month === root.selectedDate.getMonth()
                                                   && model.year === root.selectedDate.getFullYear()
                    text: model.day
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    opacity: model.month === grid.month ? 1 : 0.3
                    color: chosen ? Theme.onAccent : Theme.text
                    background: Rectangle {
                        visible: parent.chosen
                        radius: height / 2
                        color: Theme.accent
                    }
                }
                onClicked: (d) => root.setDate(new Date(d.getFullYear(), d.getMonth(), d.getDate()))
            }
        }
    }

    Component {
        id: compact
        Item {
            implicitHeight: 64
            Button {
                anchors.centerIn: parent
                text: root.selectedDate.toLocaleDateString(Qt.locale(), Locale.ShortFormat)
                Accessible.name: qsTr("Date: %1").arg(text)
                onClicked: popup.open()
            }
            Popup {
                id: popup
                modal: true
                x: 0
                y: -300
                width: parent.width
                contentItem: Loader { sourceComponent: calendar }
            }
        }
    }
}
