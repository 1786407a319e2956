import QtQuick
import QtQuick.Controls
import Platterbox

// The keys that press `button` while it is shown and enabled, so a key does what the button
// on the screen in front does, and nothing on the screens behind it.
Shortcut {
    id: root

    required property Item button
    // A key sequence ("Ctrl+N", StandardKey.Save) or a list of them; the first is the one named
    // (a standard key with several bindings, such as StandardKey.Back, cannot be first).
    property var keys
    readonly property var keyList: keys === undefined ? [] : Array.isArray(keys) ? keys : [keys]

    sequence: keyList.length > 0 ? keyList[0] : ""
    sequences: keyList.slice(1)
    enabled: keyList.length > 0 && button.enabled && button.visible
    onActivated: button.clicked()

    // A tooltip text that names the key: "Save (Ctrl+S)".
    function hint(text: string): string {
        return nativeText !== "" && text !== "" ? text + " (" + nativeText + ")" : text
    }
}
