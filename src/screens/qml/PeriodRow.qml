import QtQuick
import Vantrell

FigureRow {
    id: period

    required property periodRowView row

    title: period.row.title
    money: period.row.money
    copyText: period.row.copyText

    CaptionText { text: period.row.caption }
    CaptionText {
        text: period.row.note
        font.pixelSize: Theme.smallest
        color: Theme.tertiary
    }
}
