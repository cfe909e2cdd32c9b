import QtQuick
import Vantrell

// A figure of a table, at the end of its column.
MoneyText {
    id: cell

    required property TableShape table
    required property int column
    property bool isEmpty: false
    property bool tabStop: false

    enabled: !cell.isEmpty
    anchors.verticalCenter: parent !== null ? parent.verticalCenter : undefined
    width: cell.table.columnWidth
    // The column's width is what counts: the text needn't be laid out once more to learn its own.
    implicitWidth: cell.width
    inkColor: cell.isEmpty ? Theme.tertiary : Theme.primary
    font.pixelSize: Theme.callout
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 10
    focusPolicy: cell.tabStop ? Qt.TabFocus : Qt.NoFocus
    onActiveFocusChanged: if (cell.activeFocus) cell.table.reveal(cell.column)
}
