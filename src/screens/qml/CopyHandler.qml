import QtQuick
import Vantrell

// Lets what it lies in be copied: by Ctrl+C, and from the menu of the right button or of the menu key.
Item {
    id: handler

    // What is copied.
    required property string text
    signal menuRequested()

    function openMenu(x, y) {
        menu.active = true
        menu.item.x = x
        menu.item.y = y
        menu.item.open()
    }
    function takeKey(event) {
        if (event.matches(StandardKey.Copy)) {
            Theme.clipboard.copy(handler.text)
            event.accepted = true
        } else if (event.key === Qt.Key_Menu) {
            handler.openMenu(24, handler.height)
            event.accepted = true
        }
    }

    anchors.fill: parent
    onVisibleChanged: if (!handler.visible) menu.active = false

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => {
            handler.menuRequested()
            handler.openMenu(point.position.x, point.position.y)
        }
    }
    Loader {
        id: menu
        active: false
        sourceComponent: CopyMenu {
            parent: handler
            onCopied: Theme.clipboard.copy(handler.text)
            onClosed: menu.active = false
        }
    }
}
