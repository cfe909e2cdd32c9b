import QtQuick
import QtQuick.Templates as T
import Vantrell

// The newest lines of the sync log.
ListView {
    id: list

    required property SyncLogView log
    signal back()

    leftMargin: 20
    rightMargin: 20
    topMargin: 8
    bottomMargin: 20
    clip: true
    focus: true
    cacheBuffer: 400
    boundsBehavior: Flickable.StopAtBounds
    highlightMoveDuration: Theme.quick
    model: list.log.rows
    T.ScrollBar.vertical: ScrollLine {}
    Accessible.role: Accessible.List
    Accessible.name: list.log.title
    delegate: SyncLogLine { width: list.width - 40 }

    Shortcut {
        sequence: "Escape"
        enabled: list.visible
        onActivated: list.back()
    }
}
