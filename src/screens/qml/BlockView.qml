import QtQuick
import QtQuick.Templates as T
import Vantrell

// A screen whose rows lie on cards. Only what is in sight is built, however many rows there are. The arrow keys
// go from row to row, Tab to what the row holds.
ListView {
    id: list

    required property BlockList rows
    // The row where Tab enters the list.
    readonly property int stop: list.count === 0 ? -1 : list.rows.stopNear(list.currentIndex)
    readonly property real rowWidth: Math.min(list.width - 40, Theme.widestContent)
    property real beginning: 0

    function step(direction) {
        // The focus may be at what is no row, such as a tile.
        const next = list.currentIndex === list.stop ? list.rows.next(list.stop, direction) : list.stop
        if (next === list.currentIndex) {
            direction < 0 ? list.positionViewAtBeginning() : list.positionViewAtEnd()
            return
        }
        list.currentIndex = next
        list.currentItem.forceActiveFocus(Qt.TabFocusReason)
    }
    function page(direction) {
        const end = Math.max(list.originY, list.originY + list.contentHeight - list.height)
        list.contentY = Math.max(list.originY, Math.min(end, list.contentY + direction * list.height * 0.9))
    }

    model: list.rows
    // What stands above the rows grows once it is known; who is at the beginning stays there.
    onOriginYChanged: {
        if (list.contentY === list.beginning)
            list.contentY = list.originY
        list.beginning = list.originY
    }
    leftMargin: (list.width - list.rowWidth) / 2
    rightMargin: leftMargin
    // What is shown doesn't follow the margins by itself.
    onLeftMarginChanged: list.contentX = -list.leftMargin
    footer: Item { height: 20 }
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    cacheBuffer: 400
    reuseItems: true
    keyNavigationEnabled: false
    highlightMoveDuration: Theme.quick
    Accessible.role: Accessible.List
    Keys.onUpPressed: list.step(-1)
    Keys.onDownPressed: list.step(1)
    Keys.onPressed: event => {
        event.accepted = true
        switch (event.key) {
        case Qt.Key_PageUp: list.page(-1); break
        case Qt.Key_PageDown: list.page(1); break
        case Qt.Key_Home: list.positionViewAtBeginning(); break
        case Qt.Key_End: list.positionViewAtEnd(); break
        default: event.accepted = false
        }
    }
    T.ScrollBar.vertical: ScrollLine {}

    readonly property ReadingOrder order: ReadingOrder { content: list.contentItem }
}
