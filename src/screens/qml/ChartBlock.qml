import QtQuick
import Vantrell

// A chart, its legend, and the table that tells the same.
Column {
    id: block

    required property Chart chart
    required property Flickable viewport
    property real chartHeight: 220

    spacing: 10

    ChartView {
        width: parent.width
        height: block.chartHeight
        chart: block.chart
        viewport: block.viewport
    }
    Item {
        width: parent.width
        height: button.height
        ChartLegendRow {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
        }
        PushButton {
            id: button
            anchors.right: parent.right
            anchors.rightMargin: -12
            borderless: true
            text: qsTr("Show as Table")
            textSize: Theme.smallest
            onClicked: table.active = !table.active
        }
    }
    Loader {
        id: table
        active: false
        sourceComponent: ChartTable {
            parent: button
            chart: block.chart
            onClosed: table.active = false
        }
    }
}
