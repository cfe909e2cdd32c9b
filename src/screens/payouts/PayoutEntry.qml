import QtQuick
import Vantrell

// One fiscal period; opened, its currencies and a way to fetch it again.
FocusScope {
    id: entry

    required property payoutRow row
    required property int index
    required property PayoutsView model
    property real rowWidth: 0
    readonly property bool last: ListView.view !== null && index === ListView.view.count - 1

    width: entry.rowWidth
    height: header.y + header.height + (row.isExpanded ? detail.height + 12 : 0) + 4
    onActiveFocusChanged: if (entry.activeFocus) entry.ListView.view.currentIndex = entry.index

    CardSlice {
        anchors.fill: parent
        first: entry.index === 0
        last: entry.last
    }
    PayoutHeader {
        id: header
        x: 16
        y: 4
        width: parent.width - 32
        focus: true
        row: entry.row
        tabStop: entry.ListView.isCurrentItem
        onActivated: entry.model.toggle(entry.index)
    }
    Loader {
        id: detail
        active: entry.row.isExpanded
        anchors.top: header.bottom
        anchors.left: parent.left
        anchors.leftMargin: 42
        anchors.right: parent.right
        anchors.rightMargin: 16
        sourceComponent: PayoutDetail {
            currencies: entry.row.currencies
            canRefetch: entry.model.canRefetch
            onRefetch: entry.model.refetch(entry.index)
        }
    }
    Divider {
        visible: !entry.last
        x: 16
        width: parent.width - 32
        anchors.bottom: parent.bottom
    }
}
