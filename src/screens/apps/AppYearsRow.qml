import QtQuick
import Vantrell

// An app in the matrix of years.
TableRow {
    id: line

    required property yearsRow row
    readonly property var amounts: row.cells

    copyText: line.row.copyText
    topPadding: 5
    bottomPadding: 5

    DataText {
        width: line.table.nameWidth
        text: line.row.title
        font.weight: Font.Medium
    }
    Repeater {
        // By number, so that another app's figures come into what is there.
        model: line.table.columns
        DataText {
            required property int index
            // Absent while there is one more year, until the rows know of it.
            readonly property var cell: line.amounts[index]
            anchors.verticalCenter: parent !== null ? parent.verticalCenter : undefined
            width: line.table.columnWidth
            horizontalAlignment: Text.AlignRight
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            text: cell?.text ?? ""
            font.pixelSize: Theme.callout
            color: cell?.isEmpty ?? true ? Theme.tertiary : Theme.primary
            Accessible.name: cell?.spoken ?? ""
        }
    }
}
