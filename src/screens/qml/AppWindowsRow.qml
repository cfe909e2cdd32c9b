import QtQuick
import Vantrell

// An app or one of its products in the table of proceeds.
Item {
    id: line

    required property windowsRow row
    required property TableShape table
    property alias tabStop: strip.tabStop
    readonly property real ink: row.isProduct ? 0.65 : 1
    signal activated()

    implicitHeight: strip.implicitHeight

    Loader {
        anchors.fill: parent
        active: line.row.isBanded
        sourceComponent: Item {
            clip: true
            Rectangle {
                anchors.fill: parent
                anchors.topMargin: line.row.startsEntry ? 0 : -radius
                anchors.bottomMargin: line.row.endsEntry ? 0 : -radius
                radius: 10
                color: Theme.quaternary
            }
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
            width: line.table.nameWidth
            implicitHeight: Math.max(names.height, icon.height)
            Loader {
                id: icon
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                active: !line.row.isProduct
                sourceComponent: AppIcon {
                    source: line.row.icon
                    size: 28
                }
            }
            Item {
                id: names
                anchors.left: parent.left
                anchors.leftMargin: 37
                anchors.verticalCenter: parent.verticalCenter
                width: line.table.nameWidth - 37
                height: title.height + (caption.active ? 2 + caption.height : 0)
                DataText {
                    id: title
                    width: line.table.nameWidth - 37
                    text: line.row.title
                    font.pixelSize: line.row.isProduct ? Theme.callout : Theme.body
                    font.weight: line.row.isProduct ? Font.Normal : Font.Medium
                    color: line.row.isProduct ? Theme.primary : Theme.accent
                    opacity: line.ink
                }
                Loader {
                    id: caption
                    y: title.height + 2
                    active: !line.row.isProduct
                    sourceComponent: CaptionText {
                        width: line.table.nameWidth - 37
                        text: line.row.caption
                    }
                }
            }
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
