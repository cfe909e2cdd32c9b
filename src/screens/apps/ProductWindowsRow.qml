import QtQuick
import Vantrell

// A product in the table of proceeds, beneath its app.
WindowsLine {
    id: product

    ink: 0.65
    DataText {
        anchors.left: parent.left
        anchors.leftMargin: product.indent
        width: product.table.nameWidth - product.indent
        text: product.row.title
        font.pixelSize: Theme.callout
        opacity: product.ink
    }
}
