import QtQuick
import QtQuick.Layouts
import Vantrell

// One block of a form: a heading, a card with its rows, and what there is to say about it.
Column {
    id: section

    property string heading: ""
    property string footer: ""
    default property alias rows: rows.data

    spacing: 8

    PlainText {
        visible: text !== ""
        leftPadding: 4
        rightPadding: 4
        width: parent.width
        text: section.heading
        font.pixelSize: Theme.headline
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Card {
        width: parent.width
        height: rows.implicitHeight + 32
        Accessible.role: Accessible.Grouping
        Accessible.name: section.heading
        ColumnLayout {
            id: rows
            anchors.fill: parent
            anchors.margins: 16
            spacing: 14
        }
    }
    FormNote {
        visible: text !== ""
        leftPadding: 4
        rightPadding: 4
        width: parent.width
        text: section.footer
    }
}
