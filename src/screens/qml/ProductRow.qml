import QtQuick
import Vantrell

FigureRow {
    id: product

    required property productRowView row

    title: product.row.title
    money: product.row.money
    copyText: product.row.copyText

    CaptionText { text: product.row.subtitle }
    CaptionText { text: product.row.caption }
}
