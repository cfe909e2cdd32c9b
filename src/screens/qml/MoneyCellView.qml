import QtQuick
import Vantrell

// A figure of a table at the end of its column.
Item {
    id: cell

    required property TableShape table
    required property int column
    required property moneyValue money
    property bool isEmpty: false
    property bool tabStop: false
    property real inkOpacity: 1

    width: table.columnWidth
    implicitHeight: figure.implicitHeight
    anchors.verticalCenter: parent !== null ? parent.verticalCenter : undefined

    PlainText {
        anchors.right: parent.right
        visible: cell.isEmpty
        text: cell.money.text
        font.pixelSize: Theme.callout
        color: Theme.tertiary
        opacity: cell.inkOpacity
        Accessible.name: cell.money.spoken
    }
    MoneyText {
        id: figure
        anchors.right: parent.right
        visible: !cell.isEmpty
        width: Math.min(implicitWidth, cell.width)
        money: cell.money
        inkOpacity: cell.inkOpacity
        font.pixelSize: Theme.callout
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 8
        focusPolicy: cell.tabStop ? Qt.TabFocus : Qt.NoFocus
        onActiveFocusChanged: if (figure.activeFocus) cell.table.reveal(cell.column)
    }
}
