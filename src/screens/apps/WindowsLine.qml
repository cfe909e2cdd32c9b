import QtQuick
import Vantrell

// An app or one of its products in the table of proceeds: what it is called, then its windows.
Item {
    id: line

    required property windowsRow row
    required property TableShape table
    property alias tabStop: strip.tabStop
    property real ink: 1
    default property alias names: place.data
    // Where names begin, beside the picture of the app.
    readonly property real indent: 37
    signal activated()

    implicitHeight: strip.implicitHeight

    // The ground of every other entry, rounded where it begins and ends.
    Item {
        visible: line.row.isBanded
        anchors.fill: parent
        clip: true
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: line.row.startsEntry ? 0 : -radius
            anchors.bottomMargin: line.row.endsEntry ? 0 : -radius
            radius: 10
            color: Theme.quaternary
        }
    }
    TableRow {
        id: strip
        width: parent.width
        table: line.table
        copyText: line.row.copyText
        opens: true
        topPadding: line.row.startsEntry ? 10 : 4
        bottomPadding: line.row.endsEntry ? 10 : 4
        onActivated: line.activated()

        Item {
            id: place
            width: line.table.nameWidth
            implicitHeight: childrenRect.height
        }
        MoneyCellView {
            table: line.table
            column: 0
            money: line.row.last30.money
            isEmpty: line.row.last30.isEmpty
            tabStop: strip.tabStop
            inkOpacity: line.ink
        }
        MoneyCellView {
            table: line.table
            column: 1
            money: line.row.last365.money
            isEmpty: line.row.last365.isEmpty
            tabStop: strip.tabStop
            inkOpacity: line.ink
        }
        MoneyCellView {
            table: line.table
            column: 2
            money: line.row.ytd.money
            isEmpty: line.row.ytd.isEmpty
            tabStop: strip.tabStop
            inkOpacity: line.ink
        }
        MoneyCellView {
            table: line.table
            column: 3
            money: line.row.allTime.money
            isEmpty: line.row.allTime.isEmpty
            tabStop: strip.tabStop
            inkOpacity: line.ink
        }
    }
}
