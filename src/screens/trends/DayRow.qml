import QtQuick
import Vantrell

FigureRow {
    id: day

    required property dayRowView row

    title: day.row.title
    money: day.row.money
    copyText: day.row.copyText
    opens: true
    beside: StatusCapsule { badge: day.row.badge }

    CaptionText { text: day.row.caption }
}
