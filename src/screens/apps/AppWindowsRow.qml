import QtQuick
import Vantrell

// An app in the table of proceeds.
WindowsLine {
    id: app

    AppIcon {
        anchors.left: parent.left
        y: (names.height - height) / 2
        source: app.row.icon
        size: 28
    }
    Column {
        id: names
        anchors.left: parent.left
        anchors.leftMargin: app.indent
        width: app.table.nameWidth - app.indent
        spacing: 2
        DataText {
            width: parent.width
            text: app.row.title
            font.weight: Font.Medium
            color: Theme.accent
        }
        CaptionText {
            width: parent.width
            text: app.row.caption
        }
    }
}
