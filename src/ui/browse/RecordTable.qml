pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Platterbox

// The collection as a table on a desktop-wide window, one row per record, over the rows the
// cards read. A click on a header sorts by its column (headerClicked()); dragging a header's
// right edge resizes its column. Columns fit the texts shown so far and the text columns share
// the room left; a column dragged narrower than a text cuts it short and shows it whole in a
// tooltip. Up and Down move the current row, Enter or a click opens it (activated()), and
// Delete or a right-click offers its delete, as on the cards.
FocusScope {
    id: root

    property alias model: list.model
    property alias currentIndex: list.currentIndex
    property alias count: list.count
    property var titles: []
    property int sortColumn: -1
    property bool sortAscending: true
    // Up from the first row goes back to this field.
    property Item searchField: null

    signal headerClicked(int column)
    signal activated(int index)
    signal deleteRequested(int index)

    readonly property real cellPadding: 10
    readonly property real minimumColumnWidth: 36
    readonly property real rowHeight: 34
    readonly property real scrollBarRoom: 12
    // How the room left over is shared: Album, Artist and Label take it.
    readonly property var stretch: [3, 2, 0, 2, 0, 0, 0, 0]
    // The widest text of each column shown so far (headers included); columns never shrink
    // as rows scroll by, so the table keeps still.
    property var fitted: []
    // The widths the user dragged columns to (undefined: fitted).
    property var dragged: []
    // Scrolled to the right by this much where the columns are wider than the table.
    property real scrollX: 0

    readonly property var widths: {
        const w = []
        let used = 0
        let weight = 0
        for (let i = 0; i < titles.length; ++i) {
            const own = dragged[i] !== undefined
            w.push(own ? dragged[i] : Math.max(minimumColumnWidth, (fitted[i] || 0) + 2 * cellPadding))
            used += w[i]
            if (!own)
                weight += stretch[i] || 0
        }
        // Room is kept for the scroll bar beside the last column.
        const spare = width - scrollBarRoom - used
        if (spare > 0 && weight > 0) {
            for (let i = 0; i < w.length; ++i) {
                if (dragged[i] === undefined)
                    w[i] += spare * (stretch[i] || 0) / weight
            }
        }
        return w
    }
    readonly property real tableWidth: widths.reduce((sum, w) => sum + w, 0)
    readonly property real maxScrollX: Math.max(0, tableWidth + scrollBarRoom - width)
    onMaxScrollXChanged: scrollX = Math.min(scrollX, maxScrollX)

    function fit(column: int, textWidth: real) {
        if (textWidth > (fitted[column] || 0)) {
            const f = fitted.slice()
            f[column] = Math.ceil(textWidth)
            fitted = f
        }
    }

    function resize(column: int, columnWidth: real) {
        const d = dragged.slice()
        d[column] = Math.max(minimumColumnWidth, columnWidth)
        dragged = d
    }

    function scrollBy(dx: real) {
        scrollX = Math.max(0, Math.min(maxScrollX, scrollX + dx))
    }

    // Numbers line up on the right.
    function alignment(column: int): int {
        return column >= 5 ? Text.AlignRight : Text.AlignLeft
    }

    Rectangle {
        id: header
        objectName: "TableHeader"
        width: parent.width
        height: 36
        color: Theme.headerFill
        clip: true
        z: 1

        Row {
            x: -root.scrollX
            height: parent.height

            Repeater {
                model: root.titles

                delegate: Item {
                    id: headerCell

                    required property string modelData
                    required property int index
                    readonly property bool sorted: index === root.sortColumn

                    width: root.widths[index] || 0
                    height: header.height

                    Accessible.role: Accessible.ColumnHeader
                    Accessible.name: modelData
                    Accessible.onPressAction: root.headerClicked(headerCell.index)

                    Label {
                        id: headerText
                        anchors.fill: parent
                        leftPadding: root.cellPadding
                        rightPadding: root.cellPadding
                        verticalAlignment: Text.AlignVCenter
                        horizontalAlignment: root.alignment(headerCell.index)
                        font.pixelSize: 13
                        font.bold: true
                        color: Theme.text
                        // The arrow shows the direction of the column the rows are sorted by.
                        text: headerCell.modelData + (headerCell.sorted ? (root.sortAscending ? " ▲" : " ▼") : "")
                        elide: Text.ElideRight
                        onImplicitWidthChanged: root.fit(headerCell.index, implicitWidth - leftPadding - rightPadding)
                        Component.onCompleted: root.fit(headerCell.index, implicitWidth - leftPadding - rightPadding)
                        HoverHandler { id: headerHover }
                        ToolTip.visible: truncated && headerHover.hovered
                        ToolTip.text: text
                        ToolTip.delay: 500
                    }
                    TapHandler {
                        onTapped: root.headerClicked(headerCell.index)
                    }
                    // The column's right edge: dragged, it makes the column narrower or wider.
                    MouseArea {
                        objectName: "ColumnEdge" + headerCell.index
                        property real pressX: 0
                        property real pressWidth: 0
                        width: 8
                        height: parent.height
                        anchors.right: parent.right
                        z: 1
                        cursorShape: Qt.SplitHCursor
                        preventStealing: true
                        onPressed: (mouse) => {
                            pressX = mapToItem(root, mouse.x, 0).x
                            pressWidth = headerCell.width
                        }
                        onPositionChanged: (mouse) => {
                            root.resize(headerCell.index, pressWidth + mapToItem(root, mouse.x, 0).x - pressX)
                        }
                        onDoubleClicked: {
                            // Back to fitting its texts.
                            const d = root.dragged.slice()
                            d[headerCell.index] = undefined
                            root.dragged = d
                        }
                        Rectangle {
                            anchors.right: parent.right
                            width: 1
                            height: parent.height - 12
                            anchors.verticalCenter: parent.verticalCenter
                            color: Theme.fieldBorder
                        }
                    }
                }
            }
        }
    }

    ListView {
        id: list
        objectName: "VinylTable"
        anchors.top: header.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: hbar.visible ? hbar.top : parent.bottom
        clip: true
        focus: true
        currentIndex: -1
        keyNavigationEnabled: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        ScrollBar.vertical: ScrollBar {}

        WheelScroller { view: list }
        // A sideways wheel (or Shift and the wheel) scrolls the columns.
        WheelHandler {
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            orientation: Qt.Horizontal
            enabled: root.maxScrollX > 0
            onWheel: (event) => {
                root.scrollBy(-(event.angleDelta.x || event.angleDelta.y) / 120 * Adaptive.wheelLine)
                event.accepted = true
            }
        }

        delegate: SwipeRow {
            id: row

            required property int index
            required property var cells
            required property string accessibleLabel

            itemName: cells[0] || ""
            Accessible.name: accessibleLabel
            width: list.width
            height: root.rowHeight
            padding: 0
            topPadding: 0
            bottomPadding: 0

            onClicked: {
                list.currentIndex = index
                root.activated(index)
            }
            onDeleteRequested: root.deleteRequested(index)

            background: Rectangle {
                color: row.ListView.isCurrentItem && list.activeFocus ? Theme.selection
                     : row.hovered ? Theme.rowHover
                     : row.index % 2 ? Theme.rowAlternate : Theme.window
                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 1
                    color: Theme.divider
                }
            }

            contentItem: Item {
                clip: true

                Row {
                    x: -root.scrollX
                    height: parent.height

                    Repeater {
                        model: root.titles.length

                        delegate: Label {
                            id: cell

                            required property int index

                            Accessible.ignored: true
                            width: root.widths[index] || 0
                            height: row.height
                            leftPadding: root.cellPadding
                            rightPadding: root.cellPadding
                            verticalAlignment: Text.AlignVCenter
                            horizontalAlignment: root.alignment(index)
                            font.pixelSize: 13
                            font.bold: index === 0
                            color: Theme.text
                            text: row.cells[index] || ""
                            elide: Text.ElideRight
                            onImplicitWidthChanged: root.fit(index, implicitWidth - leftPadding - rightPadding)
                            Component.onCompleted: root.fit(index, implicitWidth - leftPadding - rightPadding)
                            HoverHandler { id: cellHover }
                            ToolTip.visible: truncated && cellHover.hovered
                            ToolTip.text: text
                            ToolTip.delay: 500
                        }
                    }
                }
            }
        }

        // The first arrow key selects the first row.
        Keys.onPressed: (event) => {
            if ((event.key === Qt.Key_Up || event.key === Qt.Key_Down) && count > 0 && currentIndex < 0) {
                currentIndex = 0
                event.accepted = true
            } else if (event.key === Qt.Key_Up && currentIndex === 0 && root.searchField) {
                root.searchField.forceActiveFocus()
                event.accepted = true
            } else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && currentIndex >= 0) {
                root.activated(currentIndex)
                event.accepted = true
            } else if (event.key === Qt.Key_Delete && currentItem && currentItem.swipe !== undefined) {
                currentItem.swipe.open(SwipeDelegate.Right)
                event.accepted = true
            } else if (event.key === Qt.Key_Left || event.key === Qt.Key_Right) {
                root.scrollBy((event.key === Qt.Key_Left ? -1 : 1) * Adaptive.wheelLine)
                event.accepted = true
            }
        }
    }

    ScrollBar {
        id: hbar
        orientation: Qt.Horizontal
        visible: root.maxScrollX > 0
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        size: root.tableWidth > 0 ? root.width / root.tableWidth : 1
        position: root.tableWidth > 0 ? root.scrollX / root.tableWidth : 0
        onPositionChanged: if (pressed) root.scrollX = position * root.tableWidth
        policy: ScrollBar.AlwaysOn
    }
}
