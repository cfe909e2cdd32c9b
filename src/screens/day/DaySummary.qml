import QtQuick
import QtQuick.Layouts
import Vantrell

// A day's proceeds and units, above its lines.
Column {
    id: summary

    required property DayDetailView day

    spacing: 18

    Card {
        width: parent.width
        height: row.height + 24
        RowLayout {
            id: row
            x: 16
            y: 12
            width: parent.width - 32
            spacing: 16
            ColumnLayout {
                spacing: 2
                DataText {
                    text: qsTr("Proceeds")
                    font.pixelSize: Theme.caption
                    color: Theme.secondary
                }
                DataText {
                    Layout.fillWidth: true
                    text: summary.day.caption
                    font.pixelSize: Theme.caption
                    color: Theme.secondary
                }
            }
            LoneFigure {
                Layout.maximumWidth: row.width * 0.6
                money: summary.day.money
                font.pixelSize: Theme.title3
                font.weight: Font.DemiBold
            }
        }
    }
    PlainText {
        text: qsTr("Line items")
        font.pixelSize: Theme.caption
        font.weight: Font.Medium
        color: Theme.secondary
        bottomPadding: summary.day.noLinesText === "" ? 6 : 0
        Accessible.role: Accessible.Heading
    }
    PlainText {
        visible: text !== ""
        text: summary.day.noLinesText
        color: Theme.secondary
    }
}
