import QtQuick
import Vantrell

// What is looked at and how finely, the chart of it, and its legends.
Column {
    id: block

    required property ByDayView model
    required property Flickable viewport

    spacing: 14

    Flow {
        width: parent.width
        spacing: 16
        SegmentedPicker {
            name: qsTr("Window")
            titles: [qsTr("30 days"), qsTr("90 days"), qsTr("365 days"), qsTr("Custom")]
            place: block.model.windowPlace
            onChosen: place => block.model.selectWindow(place)
        }
        SegmentedPicker {
            name: qsTr("Granularity")
            titles: [qsTr("Daily"), qsTr("Weekly"), qsTr("Monthly")]
            place: block.model.granularityPlace
            onChosen: place => block.model.selectGranularity(place)
        }
    }
    Flow {
        visible: block.model.isCustom
        width: parent.width
        spacing: 16
        DatePicker { field: block.model.from }
        DatePicker { field: block.model.through }
    }
    ChartBlock {
        width: parent.width
        chart: block.model.chart
        viewport: block.viewport
    }
    TrendLegendGrid {
        visible: block.model.usesSeriesColors
        width: parent.width
        legend: block.model.trendLegend
    }
}
