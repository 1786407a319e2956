import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Platterbox

// The search field above a list: Ctrl+F comes here, and the Down key goes on to the list.
TextField {
    Accessible.name: placeholderText !== "" ? placeholderText : qsTr("Search")
    id: root

    property Item results: null

    objectName: "SearchField"
    inputMethodHints: Qt.ImhNoPredictiveText
    // Never wider than a form's field, centred above the list.
    Layout.maximumWidth: Adaptive.formWidth
    Layout.alignment: Qt.AlignHCenter

    Keys.onDownPressed: (event) => {
        if (results) {
            results.forceActiveFocus()
            if (results.currentIndex < 0 && results.count > 0)
                results.currentIndex = 0
        }
    }

    Shortcut {
        sequence: StandardKey.Find
        enabled: root.visible && root.enabled
        onActivated: {
            root.forceActiveFocus()
            root.selectAll()
        }
    }
}
