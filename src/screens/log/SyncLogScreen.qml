import QtQuick
import QtQuick.Templates as T
import Vantrell

// The newest lines of the sync log.
ListView {
    id: list

    required property SyncLogView log
    signal back()

    readonly property real rowWidth: Math.min(list.width - 40, Theme.widestContent)

    leftMargin: (list.width - list.rowWidth) / 2
    rightMargin: leftMargin
    // What is shown doesn't follow the margins by itself.
    onLeftMarginChanged: list.contentX = -list.leftMargin
    topMargin: 20
    bottomMargin: 20
    clip: true
    focus: true
    // No line is framed before an arrow key asks for one.
    currentIndex: -1
    activeFocusOnTab: list.currentIndex < 0 || list.activeFocus
    cacheBuffer: 400
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: Theme.quick
    model: list.log.rows
    T.ScrollBar.vertical: ScrollLine {}
    readonly property ReadingOrder order: ReadingOrder { content: list.contentItem }
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Sync Log")
    delegate: SyncLogLine { width: list.rowWidth }

    Shortcut {
        sequence: "Escape"
        enabled: list.visible
        onActivated: list.back()
    }
}
