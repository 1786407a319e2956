pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// Who has the record: "Lent to Sam since …" with "Returned", or "Lend…", which asks to whom,
// from which day, until which and why; then the record's past loans, the latest first.
ColumnLayout {
    id: root

    required property EditVinylViewController controller

    spacing: 4

    Label {
        text: qsTr("Loans")
        color: Theme.secondaryText
        font.pixelSize: 13
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: 10
        Label {
            objectName: "LoanStatus"
            text: root.controller.onLoan ? root.controller.loanStatus : qsTr("In the collection")
            color: root.controller.overdue ? Theme.danger : (root.controller.onLoan ? Theme.text : Theme.captionText)
            font.pixelSize: 15
            font.bold: root.controller.onLoan
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }
        StyledButton {
            objectName: root.controller.onLoan ? "ReturnedButton" : "LendButton"
            text: root.controller.onLoan ? qsTr("Returned") : qsTr("Lend\u2026")
            implicitHeight: 40
            onClicked: root.controller.onLoan ? root.controller.returned() : lendDialog.open()
        }
    }
    Repeater {
        model: root.controller.loanHistory
        delegate: Label {
            required property string modelData
            text: modelData
            color: Theme.secondaryText
            font.pixelSize: 14
            wrapMode: Text.Wrap
            Layout.fillWidth: true
        }
    }

    Dialog {
        id: lendDialog
        objectName: "LendDialog"
        title: qsTr("Lend Record")
        modal: true
        parent: Overlay.overlay
        anchors.centerIn: parent
        width: Math.min(parent ? parent.width - 48 : 360, 380)
        standardButtons: Dialog.Cancel | Dialog.Ok

        onAboutToShow: {
            borrower.editText = ""
            lent.text = root.controller.todayText
            due.text = ""
            note.text = ""
            borrower.forceActiveFocus()
        }
        // The dialog stays open, with what was typed, when the loan is refused.
        onAccepted: {
            if (!root.controller.lend(borrower.editText, lent.text, due.text, note.text))
                open()
        }

        contentItem: GridLayout {
            columns: 2
            columnSpacing: 10
            rowSpacing: 8
            Label { text: qsTr("To") }
            ComboBox {
                Accessible.name: qsTr("Lent to")
                id: borrower
                objectName: "BorrowerField"
                editable: true
                model: root.controller.borrowers
                Layout.fillWidth: true
            }
            Label { text: qsTr("Since") }
            TextField {
                Accessible.name: qsTr("Since")
                id: lent
                objectName: "LentField"
                Layout.fillWidth: true
            }
            Label { text: qsTr("Due back") }
            TextField {
                Accessible.name: qsTr("Due back")
                id: due
                objectName: "DueField"
                placeholderText: qsTr("Optional")
                Layout.fillWidth: true
            }
            Label { text: qsTr("Note") }
            TextField {
                Accessible.name: qsTr("Note")
                id: note
                objectName: "LoanNoteField"
                Layout.fillWidth: true
            }
        }
    }
}
