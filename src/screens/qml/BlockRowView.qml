import QtQuick
import Vantrell

// One row of a block, on its part of the card. A row that has left the sight is kept for another of its kind.
FocusScope {
    id: entry

    required property var row
    required property bool startsBlock
    required property bool endsBlock
    required property bool isDivided
    required property int index

    // What brings its own cards lies on none.
    property bool isBare: false
    default property alias contents: content.data
    readonly property real contentWidth: content.width
    readonly property BlockView list: ListView.view as BlockView
    readonly property bool isStop: list !== null && list.stop === index
    readonly property real gap: startsBlock ? 20 : 0
    readonly property real inset: isBare ? 0 : 16
    property bool isInStore: false

    visible: !entry.isInStore
    width: list !== null ? list.rowWidth : 0
    height: content.y + content.height + (endsBlock ? inset : 0)
    onActiveFocusChanged: if (entry.activeFocus) entry.list.currentIndex = entry.index
    ListView.onPooled: entry.isInStore = true
    ListView.onReused: entry.isInStore = false

    CardSlice {
        visible: !entry.isBare
        anchors.fill: parent
        anchors.topMargin: entry.gap
        first: entry.startsBlock
        last: entry.endsBlock
    }
    FocusScope {
        id: content
        x: entry.inset
        y: entry.gap + (entry.startsBlock ? entry.inset : 0)
        width: entry.width - 2 * entry.inset
        height: childrenRect.height
        focus: true
    }
    Divider {
        visible: entry.isDivided
        x: 16
        width: entry.width - 32
        anchors.bottom: parent.bottom
    }
}
