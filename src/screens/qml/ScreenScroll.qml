import QtQuick
import QtQuick.Templates as T
import Vantrell

// A screen that scrolls: its content in a column with the screen's margins.
Flickable {
    id: scroll

    default property alias content: column.data
    property real spacing: 20
    property real maximumWidth: Theme.widestContent
    property bool centered: false
    readonly property real margin: Math.max(20, (width - Theme.widestContent) / 2)
    readonly property Item focused: scroll.Window.activeFocusItem

    // Whoever goes through a long screen by Tab sees where they are.
    onFocusedChanged: {
        for (let item = scroll.focused; item !== null; item = item.parent) {
            if (item === column) {
                scroll.reveal(column.mapFromItem(scroll.focused, 0, 0).y + column.y, scroll.focused.height)
                return
            }
        }
    }
    function reveal(top, length) {
        const bottom = top + length + 30
        if (top - 30 < scroll.contentY)
            scroll.contentY = Math.max(0, top - 30)
        else if (bottom > scroll.contentY + scroll.height)
            scroll.contentY = Math.max(0, Math.min(bottom, scroll.contentHeight) - scroll.height)
    }

    contentWidth: width
    contentHeight: column.height + 40
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.VerticalFlick
    clip: true
    T.ScrollBar.vertical: ScrollLine {}
    Keys.onUpPressed: scroll.flick(0, 600)
    Keys.onDownPressed: scroll.flick(0, -600)

    Column {
        id: column
        x: scroll.centered ? (scroll.width - width) / 2
            : scroll.LayoutMirroring.enabled ? scroll.width - width - scroll.margin : scroll.margin
        y: 20
        width: Math.min(scroll.width - 40, scroll.maximumWidth)
        spacing: scroll.spacing
    }
}
