pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Dialogs
import Platterbox

// The record form both the add and the edit screen show: two covers with their buttons, the
// fifteen fields, the pickers and the release-date picker. The form scrolls so that the
// field being edited stays above the keyboard or the open picker.
Item {
    id: root

    required property QtObject controller
    // The add screen and the edit screen name two of their parts differently.
    property bool addScreen: true
    // A record needs its label; a wanted album only its name and artist.
    property bool labelRequired: true
    // Extra buttons under the form (the edit screen's tracks, notes and zoom).
    property alias footer: footerHolder.data
    // Shown under the cost and value fields (the edit screen's value history).
    property alias underValue: underValueHolder.data

    // Which sheet is open: "" (none), "date" or "list".
    property string sheet: ""
    property var listEntries: []
    property string listTitle
    property var listChosen: null
    property string listCurrent
    property Item editedItem: null

    signal coverDoubleTapped()

    // A readable width, centred; at desktop width the covers stand beside the fields.
    readonly property bool coversBeside: Adaptive.isDesktop(width)
    readonly property real coversWidth: 300
    readonly property real formWidth: coversBeside ? Adaptive.centred(width, coversWidth + 24 + Adaptive.formWidth, 24)
                                                   : Adaptive.centred(width, Adaptive.formWidth, 16)

    function closeSheets() {
        sheet = ""
        editedItem = null
        forceActiveFocus()
    }

    function openDate(item: Item) {
        editedItem = item
        datePicker.restart()
        root.controller.DateEntered()
        sheet = "date"
        Qt.callLater(root.showEdited)
    }

    function openList(item: Item, title: string, entries: var, chosen: var) {
        editedItem = item
        listCurrent = item.value
        listTitle = title
        listEntries = entries
        listChosen = chosen
        sheet = "list"
        Qt.callLater(root.showEdited)
        Qt.callLater(() => listView.positionViewAtIndex(Math.max(0, root.listEntries.indexOf(root.listCurrent)),
                                                        ListView.Center))
    }

    // Scrolls the form so the edited field is fully in sight.
    function showEdited() {
        const item = editedItem ? editedItem : (Window.activeFocusItem && Window.activeFocusItem !== root ? Window.activeFocusItem : null)
        if (!item || !flick.contentItem)
            return
        const p = item.mapToItem(flick.contentItem, 0, 0)
        if (p.y < flick.contentY + 8)
            flick.contentY = Math.max(0, p.y - 8)
        else if (p.y + item.height > flick.contentY + flick.height - 8)
            flick.contentY = Math.min(flick.contentHeight - flick.height, p.y + item.height - flick.height + 8)
    }

    readonly property real keyboardHeight: Qt.inputMethod.visible ? Qt.inputMethod.keyboardRectangle.height : 0
    // Only a phone's sheet takes room from the form; a popover lies over it.
    readonly property real sheetHeight: !Adaptive.isPhone(width) ? 0
                                        : sheet === "date" ? datePicker.height : sheet === "list" ? listSheet.height : 0

    Connections {
        target: root.Window.window
        function onActiveFocusItemChanged() { Qt.callLater(root.showEdited) }
    }
    onKeyboardHeightChanged: Qt.callLater(root.showEdited)
    onSheetHeightChanged: Qt.callLater(root.showEdited)

    Connections {
        target: root.controller
        function onEndEditing() { root.closeSheets() }
        function onOpenFolderRequested() { fileDialog.open() }
        function onOpenCameraRequested() {
            camera.captureFile = root.controller.cameraCaptureFile()
            camera.open()
        }
    }

    FileDialog {
        id: fileDialog
        title: qsTr("Choose a Cover Picture")
        nameFilters: [qsTr("Pictures (*.jpg *.jpeg *.png)"), qsTr("All files (*)")]
        onAccepted: root.controller.documentPicked(selectedFile)
    }

    RecordCameraPage {
        id: camera
        onCaptured: (path) => root.controller.imagePicked(path)
        onCancelled: root.controller.imagePickerCancelled()
    }

    Flickable {
        id: flick
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: parent.height - Math.max(root.keyboardHeight, root.sheetHeight)
        contentHeight: (root.coversBeside ? Math.max(coversPane.height, form.implicitHeight)
                                          : coversPane.height + 10 + form.implicitHeight) + 32
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        WheelScroller { view: flick }

        // The covers: above the fields, beside them at desktop width.
        Item {
            id: coversPane
            x: (flick.width - root.formWidth) / 2
            y: 12
            width: root.coversBeside ? root.coversWidth : root.formWidth
            height: covers.implicitHeight

            TapHandler {
                onTapped: root.closeSheets()
            }

            GridLayout {
                id: covers
                width: parent.width
                columns: root.coversBeside ? 1 : 2
                rowSpacing: 16
                columnSpacing: 12
                Repeater {
                    model: [
                        { front: true, caption: qsTr("Front Cover") },
                        { front: false, caption: qsTr("Back Cover") }
                    ]
                    delegate: ColumnLayout {
                        id: cover
                        required property var modelData
                        readonly property bool front: modelData.front
                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        spacing: 6

                        Label {
                            text: cover.modelData.caption
                            color: Theme.secondaryText
                            font.pixelSize: 13
                        }
                        Rectangle {
                            objectName: cover.front ? "FrontCoverImage" : "BackCoverImage"
                            Layout.fillWidth: true
                            Layout.preferredHeight: root.coversBeside ? 220 : 160
                            radius: 5
                            border.width: 1
                            border.color: Theme.fieldBorder
                            color: Theme.headerFill
                            Image {
                                Accessible.role: Accessible.Graphic
                                Accessible.name: cover.modelData.caption
                                anchors.fill: parent
                                anchors.margins: 2
                                fillMode: Image.PreserveAspectFit
                                asynchronous: true
                                cache: false
                                source: cover.front ? root.controller.frontImageSource : root.controller.backImageSource
                            }
                            Label {
                                anchors.centerIn: parent
                                visible: !(cover.front ? root.controller.hasFrontImage : root.controller.hasBackImage)
                                text: qsTr("No Picture")
                                color: Theme.captionText
                            }
                            TapHandler {
                                onDoubleTapped: root.coverDoubleTapped()
                            }
                        }
                        GridLayout {
                            columns: 2
                            rowSpacing: 6
                            columnSpacing: 6
                            Layout.fillWidth: true
                            Repeater {
                                model: [
                                    { caption: qsTr("Paste"), name: "PasteButton" },
                                    { caption: qsTr("Camera"), name: "CameraButton" },
                                    { caption: qsTr("Folder"), name: "FolderButton" },
                                    { caption: qsTr("Remove"), name: "RemoveButton" }
                                ]
                                delegate: StyledButton {
                                    required property var modelData
                                    // The add screen's rear folder button keeps its historic name.
                                    objectName: !cover.front && root.addScreen && modelData.name === "FolderButton"
                                                ? "RearFolderButtom" : (cover.front ? "Front" : "Rear") + modelData.name
                                    text: modelData.caption
                                    Accessible.name: qsTr("%1: %2").arg(cover.modelData.caption).arg(modelData.caption)
                                    font.pixelSize: 14
                                    implicitHeight: 38
                                    Layout.fillWidth: true
                                    Layout.preferredWidth: 1
                                    onClicked: {
                                        const name = modelData.name
                                        const c = root.controller
                                        root.closeSheets()
                                        if (name === "PasteButton") cover.front ? c.FrontPasteFromClipboard() : c.RearPasteFromClipboard()
                                        else if (name === "CameraButton") cover.front ? c.OpenFrontCamera() : c.OpenBackCamera()
                                        else if (name === "FolderButton") cover.front ? c.OpenFrontFolder() : c.OpenBackFolder()
                                        else cover.front ? c.RemoveFrontImage() : c.RemoveBackImage()
                                    }
                                }
                            }
                        }
                    }
                }
            }
        }

        ColumnLayout {
            id: form
            x: coversPane.x + (root.coversBeside ? root.coversWidth + 24 : 0)
            y: root.coversBeside ? 12 : coversPane.y + coversPane.height + 10
            width: root.formWidth - (root.coversBeside ? root.coversWidth + 24 : 0)
            spacing: 10

            // A tap beside the fields ends editing, closing the keyboard or a picker.
            TapHandler {
                onTapped: root.closeSheets()
            }

            RecordFormField {
                objectName: "AlbumNameTextField"
                caption: qsTr("Album Name")
                required: true
                value: root.controller.albumName
                onEdited: (t) => root.controller.albumName = t
            }
            RecordFormField {
                objectName: "ArtistTextField"
                caption: qsTr("Artist")
                required: true
                value: root.controller.artist
                onEdited: (t) => root.controller.artist = t
            }
            RecordFormField {
                id: releaseDateField
                objectName: "ReleaseDateTextField"
                caption: qsTr("Release Date")
                picker: true
                clearable: true
                placeholderText: qsTr("Tap to choose")
                value: root.controller.releaseDate
                onTapped: root.openDate(releaseDateField)
                onCleared: root.controller.clearReleaseDate()
            }
            RecordFormField {
                objectName: "RecordLabelTextField"
                caption: qsTr("Record Label")
                required: root.labelRequired
                value: root.controller.recordLabel
                onEdited: (t) => root.controller.recordLabel = t
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 12
                RecordFormField {
                    objectName: "QuantityTextField"
                    caption: qsTr("Quantity")
                    inputHints: Qt.ImhDigitsOnly
                    value: root.controller.quantity
                    accepts: (before, after) => root.controller.quantityEditAccepted(before, after)
                    onEdited: (t) => root.controller.quantity = t
                    Layout.preferredWidth: 1
                }
                RecordFormField {
                    objectName: "RecordLengthTextField"
                    caption: qsTr("Run Length (min)")
                    inputHints: Qt.ImhFormattedNumbersOnly
                    value: root.controller.recordLength
                    accepts: (before, after) => root.controller.decimalEditAccepted(before, after)
                    onEdited: (t) => root.controller.recordLength = t
                    Layout.preferredWidth: 1
                }
            }
            RecordFormField {
                objectName: "ProducerTextField"
                caption: qsTr("Producer")
                value: root.controller.producer
                onEdited: (t) => root.controller.producer = t
            }
            RecordFormField {
                objectName: "BarcodeTextField"
                caption: qsTr("Barcode")
                inputHints: Qt.ImhDigitsOnly
                value: root.controller.barcode
                accepts: (before, after) => root.controller.barcodeEditAccepted(before, after)
                onEdited: (t) => root.controller.barcode = t
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 12
                RecordFormField {
                    id: vinylConditionField
                    objectName: "VinylConditionTextField"
                    caption: qsTr("Vinyl Condition")
                    picker: true
                    value: root.controller.vinylCondition
                    Layout.preferredWidth: 1
                    onTapped: root.openList(vinylConditionField, qsTr("Vinyl Condition"), root.controller.ListOfVinylConditions,
                                            (t) => root.controller.vinylCondition = t)
                }
                RecordFormField {
                    id: coverConditionField
                    objectName: "CoverConditionTextField"
                    caption: qsTr("Cover Condition")
                    picker: true
                    value: root.controller.coverCondition
                    Layout.preferredWidth: 1
                    onTapped: root.openList(coverConditionField, qsTr("Cover Condition"), root.controller.ListOfCoverConditions,
                                            (t) => root.controller.coverCondition = t)
                }
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 12
                RecordFormField {
                    id: speedField
                    objectName: "RecordSpeedTextField"
                    caption: qsTr("Record Speed")
                    picker: true
                    value: root.controller.recordSpeed
                    Layout.preferredWidth: 1
                    onTapped: root.openList(speedField, qsTr("Record Speed"), root.controller.ListOfRecordSpeeds,
                                            (t) => root.controller.recordSpeed = t)
                }
                RecordFormField {
                    id: singleDoubleField
                    objectName: root.addScreen ? "DoubleSingleTextField" : "SingleDoubleTextField"
                    caption: qsTr("Single/Double")
                    picker: true
                    value: root.controller.doubleAlbum
                    Layout.preferredWidth: 1
                    onTapped: root.openList(singleDoubleField, qsTr("Single/Double"), root.controller.ListOfSingleDouble,
                                            (t) => root.controller.doubleAlbum = t)
                }
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 12
                RecordFormField {
                    objectName: "CostTextField"
                    caption: qsTr("Cost")
                    inputHints: Qt.ImhFormattedNumbersOnly
                    value: root.controller.cost
                    accepts: (before, after) => root.controller.decimalEditAccepted(before, after)
                    onEdited: (t) => root.controller.cost = t
                    Layout.preferredWidth: 1
                }
                RecordFormField {
                    objectName: "ValueTextField"
                    caption: qsTr("Est. Value")
                    inputHints: Qt.ImhFormattedNumbersOnly
                    value: root.controller.value
                    accepts: (before, after) => root.controller.decimalEditAccepted(before, after)
                    onEdited: (t) => root.controller.value = t
                    Layout.preferredWidth: 1
                }
            }
            ColumnLayout {
                id: underValueHolder
                Layout.fillWidth: true
                visible: children.length > 0
            }

            Label {
                text: qsTr("Notes")
                color: Theme.secondaryText
                font.pixelSize: 13
            }
            TextArea {
                Accessible.name: qsTr("Notes")
                // Tab moves on to the next control rather than typing a tab.
                Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
                Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
                id: notes
                objectName: "NotesTextView"
                Layout.fillWidth: true
                Layout.preferredHeight: Math.max(96, implicitHeight)
                wrapMode: TextEdit.Wrap
                font.pixelSize: 16
                // Text keeps clear of the border drawn around it.
                leftPadding: 10
                rightPadding: 10
                background: Rectangle {
                    radius: 5
                    border.width: 1
                    border.color: notes.activeFocus ? Theme.focusRing : Theme.fieldBorder
                    color: Theme.field
                }
                property bool reverting: false
                Component.onCompleted: text = root.controller.notes
                onTextChanged: {
                    if (reverting || text === root.controller.notes)
                        return
                    if (!root.controller.notesEditAccepted(root.controller.notes, text)) {
                        const back = cursorPosition - (text.length - root.controller.notes.length)
                        reverting = true
                        text = root.controller.notes
                        reverting = false
                        cursorPosition = Math.max(0, Math.min(back, text.length))
                        return
                    }
                    root.controller.notes = text
                }
                Connections {
                    target: root.controller
                    function onFormChanged() {
                        if (notes.text !== root.controller.notes) {
                            notes.reverting = true
                            notes.text = root.controller.notes
                            notes.reverting = false
                        }
                    }
                }
            }

            // The tracks a look-up brought wait for the save.
            ColumnLayout {
                objectName: "LookedUpTracks"
                visible: root.controller.lookedUpTracks.length > 0
                Layout.fillWidth: true
                Layout.topMargin: 6
                spacing: 2
                Label {
                    text: qsTr("Tracks, stored when the record is saved")
                    color: Theme.secondaryText
                    font.pixelSize: 13
                }
                Repeater {
                    model: root.controller.lookedUpTracks
                    delegate: Label {
                        required property string modelData
                        text: modelData
                        font.pixelSize: 15
                        wrapMode: Text.Wrap
                        Layout.fillWidth: true
                    }
                }
            }

            ColumnLayout {
                id: footerHolder
                Layout.fillWidth: true
                Layout.topMargin: 6
                spacing: 10
            }
        }
    }

    DatePickerPanel {
        id: datePicker
        objectName: "ReleaseDatePickerView"
        visible: root.sheet === "date"
        style: root.controller.datePickerStyle
        readonly property rect place: Adaptive.pickerRect(root, root.editedItem, height, flick.contentY)
        x: place.x
        y: place.y
        width: place.width
        onPicked: (value) => root.controller.ReleaseDateChanged(value)
        onDoneClicked: (value) => root.controller.doneDateIssuedClick(value)
        onTodayClicked: root.controller.todayIssuedClick()
    }

    Pane {
        id: listSheet
        objectName: "ListPickerView"
        visible: root.sheet === "list"
        readonly property rect place: Adaptive.pickerRect(root, root.editedItem, height, flick.contentY)
        x: place.x
        y: place.y
        width: place.width
        height: 260
        padding: 0
        background: Rectangle { color: Theme.surface; border.color: Theme.border }

        ColumnLayout {
            anchors.fill: parent
            spacing: 0
            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 44
                color: Theme.pickerBand
                RowLayout {
                    anchors.fill: parent
                    anchors.leftMargin: 16
                    anchors.rightMargin: 8
                    Label {
                        text: root.listTitle
                        font.bold: true
                        Layout.fillWidth: true
                    }
                    ToolButton {
                        text: qsTr("Done")
                        font.bold: true
                        onClicked: root.closeSheets()
                    }
                }
            }
            Label {
                visible: root.listEntries.length === 0
                text: qsTr("No entries")
                color: Theme.captionText
                Layout.alignment: Qt.AlignHCenter
                Layout.topMargin: 24
            }
            ListView {
                id: listView
                Layout.fillWidth: true
                Layout.fillHeight: true
                clip: true
                model: root.listEntries
                delegate: ItemDelegate {
                    required property string modelData
                    width: ListView.view.width
                    highlighted: modelData === root.listCurrent
                    Accessible.name: modelData !== "" ? modelData : qsTr("None")
                    contentItem: Label {
                        text: parent.modelData
                        font.bold: true
                        font.pixelSize: 16
                        horizontalAlignment: Text.AlignHCenter
                    }
                    onClicked: {
                        if (root.listChosen)
                            root.listChosen(modelData)
                        root.closeSheets()
                    }
                }
            }
        }
    }
}
