import QtQuick
import Vantrell

// What a fiscal period shows while it is closed.
RowFrame {
    id: header

    required property payoutRow row

    opens: true
    copyText: header.row.copyText
    text: header.row.title
    Accessible.role: Accessible.Button
    Accessible.name: header.row.title
    Accessible.description: header.row.spokenState
    Keys.onSpacePressed: header.activated()

    contentItem: Item {
        implicitHeight: lines.implicitHeight
        SymbolItem {
            id: mark
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            name: header.row.isExpanded ? "chevron.down" : header.mirrored ? "chevron.left" : "chevron.right"
            color: Theme.tertiary
        }
        Column {
            id: lines
            anchors.left: mark.right
            anchors.leftMargin: 12
            anchors.right: amount.left
            anchors.rightMargin: 12
            spacing: 2
            DataText {
                width: parent.width
                text: header.row.title
                font.weight: Font.Medium
            }
            DataText {
                visible: text !== ""
                width: parent.width
                text: header.row.dates
                font.pixelSize: Theme.caption
                color: Theme.secondary
            }
            DataText {
                width: parent.width
                text: header.row.units
                font.pixelSize: Theme.smallest
                color: Theme.tertiary
            }
        }
        MoneyText {
            id: amount
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            money: header.row.money
            font.pixelSize: Theme.body
            font.weight: Font.Medium
            focusPolicy: header.tabStop ? Qt.TabFocus : Qt.NoFocus
        }
    }
}
