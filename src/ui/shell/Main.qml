pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import Platterbox

// The window and its one navigation stack. Screens are pushed by name through the
// navigator; named returns pop back to the screen registered under that name.
ApplicationWindow {
    id: root

    // Phone-sized unless the app chooses a size for the screen it opens on (main.cpp).
    width: 390
    height: 844
    minimumWidth: 320
    minimumHeight: 480
    visible: true
    title: qsTr("Platterbox")

    // The controls take their colours from the theme too.
    Material.theme: Theme.dark ? Material.Dark : Material.Light
    Material.background: Theme.window
    Material.foreground: Theme.text
    Material.accent: Theme.accent
    Material.primary: Theme.toolbar

    property alias stack: stack

    Shortcut {
        sequence: StandardKey.Quit
        context: Qt.ApplicationShortcut
        onActivated: Qt.quit()
    }

    StackView {
        id: stack

        anchors.fill: parent
        initialItem: MainMenuView {
            objectName: "MainMenuView"
        }
    }

    Connections {
        target: AppDelegate.navigator

        function onShowRequested(screen: string, url: url) {
            stack.push(url, { objectName: screen })
        }

        function onUnwindRequested(screen: string, segue: string) {
            const target = stack.find(item => item.objectName === screen)
            if (target) {
                stack.pop(target)
                if (typeof target.unwound === "function")
                    target.unwound(segue)
            } else {
                stack.pop(null)
            }
        }

        function onBackRequested() {
            if (stack.depth > 1)
                stack.pop()
        }
    }
}
