import QtQuick
import Vantrell

// What the columns of a table are called.
TableStrip {
    id: header

    required property columnTitles titles

    implicitHeight: row.height + 15
    height: implicitHeight

    Row {
        id: row
        anchors.left: parent.left
        anchors.leftMargin: header.table.padding
        spacing: header.table.spacing
        PlainText {
            width: header.table.nameWidth
            text: header.titles.name
            font.pixelSize: Theme.caption
            color: Theme.secondary
        }
        Repeater {
            model: header.titles.columns
            DataText {
                required property string modelData
                width: header.table.columnWidth
                horizontalAlignment: Text.AlignRight
                text: modelData
                font.pixelSize: Theme.caption
                color: Theme.secondary
            }
        }
    }
    Divider {
        y: row.height + 8
        width: header.contentWidth
    }
}
