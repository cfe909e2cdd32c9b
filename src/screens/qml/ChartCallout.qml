import QtQuick
import QtQuick.Layouts
import Vantrell

// What a chart says about its selected column.
Rectangle {
    id: callout

    required property Chart chart

    implicitWidth: column.implicitWidth + 20
    implicitHeight: column.implicitHeight + 14
    radius: Theme.controlRadius
    color: Theme.raised
    border.color: Theme.border

    Rectangle {
        z: -1
        anchors.fill: parent
        anchors.topMargin: 1
        anchors.bottomMargin: -3
        radius: Theme.controlRadius + 1
        color: "#14000000"
    }
    ColumnLayout {
        id: column
        x: 10
        y: 7
        spacing: 2
        PlainText {
            text: callout.chart.annotation.title
            font.pixelSize: Theme.caption
            font.weight: Font.Medium
            color: Theme.secondary
        }
        PlainText {
            text: callout.chart.annotation.status
            font.pixelSize: Theme.smallest
            color: Theme.tertiary
        }
        Repeater {
            model: callout.chart.amounts
            RowLayout {
                id: line
                required property chartAmount row
                spacing: 6
                Rectangle {
                    visible: line.row.hasDot
                    implicitWidth: 6
                    implicitHeight: 6
                    radius: 3
                    color: Theme.dark ? line.row.dot.dark : line.row.dot.light
                }
                PlainText {
                    Layout.fillWidth: true
                    Layout.maximumWidth: 200
                    visible: text !== ""
                    spoken: false
                    text: line.row.title
                    font.pixelSize: line.row.isSmall ? Theme.smallest : Theme.caption
                    color: Theme.tone(line.row.tone)
                }
                PlainText {
                    Layout.fillWidth: true
                    visible: text !== ""
                    horizontalAlignment: line.row.title === "" ? Text.AlignLeft : Text.AlignRight
                    text: line.row.amount
                    Accessible.name: line.row.spoken
                    font.pixelSize: line.row.isSmall ? Theme.smallest : Theme.caption
                    font.weight: line.row.isSmall ? Font.Normal : Font.Medium
                    color: Theme.tone(line.row.tone)
                }
            }
        }
    }
}
