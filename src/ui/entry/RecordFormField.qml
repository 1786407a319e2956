import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// One field of the record form: its caption (red for the required fields) and a text
// field. `value` is the controller's text; the field reports the user's changes through
// edited() after `accepts(before, after)` (when given) has let them through. A picker
// field is read-only and reports taps instead.
ColumnLayout {
    id: root

    property string caption
    property string value
    property bool required: false
    property bool picker: false
    // Shows a button that empties the field.
    property bool clearable: false
    property var accepts: null
    property int inputHints: Qt.ImhNone
    property alias field: input
    property alias placeholderText: input.placeholderText

    signal edited(string text)
    signal tapped()
    signal cleared()

    spacing: 2
    Layout.fillWidth: true

    Label {
        text: root.caption
        color: root.required ? Theme.attention : Theme.secondaryText
        font.pixelSize: 13
    }

    TextField {
        Accessible.name: root.caption
        id: input
        objectName: root.objectName + "Input"
        Layout.fillWidth: true
        font.pixelSize: 17
        leftPadding: 10
        rightPadding: clearButton.visible ? clearButton.width + 4 : 10
        topPadding: 8
        bottomPadding: 8
        readOnly: root.picker
        // A picker opens from the keyboard too.
        Keys.onSpacePressed: (event) => { event.accepted = root.picker; if (root.picker) root.tapped() }
        inputMethodHints: root.inputHints
        background: Rectangle {
            radius: 5
            border.width: 1
            border.color: input.activeFocus ? Theme.focusRing : (root.required ? Theme.attention : Theme.fieldBorder)
            color: Theme.field
        }
        Component.onCompleted: text = root.value
        onTextEdited: {
            if (root.accepts && !root.accepts(root.value, text)) {
                // Refused: the field shows what it showed before, cursor where it was.
                const back = cursorPosition - (text.length - root.value.length)
                text = root.value
                cursorPosition = Math.max(0, Math.min(back, text.length))
                return
            }
            root.edited(text)
        }
        // Under the clear button, so a tap on that button only clears.
        MouseArea {
            anchors.fill: parent
            enabled: root.picker
            visible: root.picker
            onClicked: {
                input.forceActiveFocus()
                root.tapped()
            }
        }
        ToolButton {
            id: clearButton
            objectName: root.objectName + "ClearButton"
            visible: root.clearable && input.text !== ""
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 40
            height: 40
            text: "\u2715"
            Accessible.name: qsTr("Clear")
            onClicked: root.cleared()
        }
    }

    onValueChanged: if (input.text !== value) input.text = value
}
