import QtQuick
import Vantrell

// A row of a table: what it is called, then its columns.
TableStrip {
    id: strip

    property alias copyText: frame.copyText
    property alias opens: frame.opens
    property alias tabStop: frame.tabStop
    property alias topPadding: frame.topPadding
    property alias bottomPadding: frame.bottomPadding
    default property alias cells: cells.data
    signal activated()

    implicitHeight: frame.implicitHeight
    height: implicitHeight

    RowFrame {
        id: frame
        width: strip.contentWidth
        focus: true
        overhang: 0
        leftPadding: strip.table.padding
        rightPadding: strip.table.padding
        onActivated: strip.activated()
        Keys.onLeftPressed: strip.push(-strip.table.columnWidth)
        Keys.onRightPressed: strip.push(strip.table.columnWidth)
        contentItem: Item {
            // A positioner has no height while it is hidden, and a list would build all its rows.
            implicitHeight: cells.childrenRect.height
            Row {
                id: cells
                anchors.left: parent.left
                spacing: strip.table.spacing
            }
        }
    }
}
