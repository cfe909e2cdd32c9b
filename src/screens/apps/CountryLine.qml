import QtQuick
import Vantrell

// A country and what it brought in.
RowFrame {
    id: line

    required property countryRow row

    topPadding: 3
    bottomPadding: 3
    copyText: line.row.copyText
    contentItem: Item {
        implicitWidth: 240
        implicitHeight: name.implicitHeight
        DataText {
            id: name
            anchors.left: parent.left
            width: Math.min(220, parent.width * 0.5)
            text: line.row.title
            font.pixelSize: Theme.callout
        }
        DataText {
            anchors.left: name.right
            anchors.leftMargin: 20
            width: 140
            horizontalAlignment: Text.AlignRight
            text: line.row.amount
            font.pixelSize: Theme.callout
            Accessible.name: line.row.spokenAmount
        }
    }
}
