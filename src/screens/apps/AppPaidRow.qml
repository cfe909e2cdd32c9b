import QtQuick
import Vantrell

// What was paid for an app.
TableRow {
    id: line

    required property appPayoutRow row

    copyText: line.row.copyText
    topPadding: 4
    bottomPadding: 4

    DataText {
        width: line.table.nameWidth
        text: line.row.title
        font.weight: Font.Medium
    }
    MoneyCellView {
        table: line.table
        column: 0
        money: line.row.currentFiscalYear
        tabStop: line.tabStop
    }
    MoneyCellView {
        table: line.table
        column: 1
        money: line.row.allTime
        tabStop: line.tabStop
    }
}
