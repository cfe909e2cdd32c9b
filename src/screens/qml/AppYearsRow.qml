import QtQuick
import Vantrell

// An app in the matrix of years.
TableRow {
    id: line

    required property yearsRow row

    copyText: line.row.copyText
    topPadding: 5
    bottomPadding: 5

    DataText {
        width: line.table.nameWidth
        text: line.row.title
        font.weight: Font.Medium
    }
    Repeater {
        model: line.row.cells
        DataText {
            required property yearCell modelData
            anchors.verticalCenter: parent !== null ? parent.verticalCenter : undefined
            width: line.table.columnWidth
            horizontalAlignment: Text.AlignRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            text: modelData.text
            font.pixelSize: Theme.callout
            color: modelData.isEmpty ? Theme.tertiary : Theme.primary
            Accessible.name: modelData.spoken
        }
    }
}
