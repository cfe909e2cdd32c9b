import QtQuick
import QtQuick.Layouts
import Vantrell

// Which colour of a trend is which app, in as many columns as fit.
Grid {
    id: grid

    required property TrendLegendView legend
    readonly property int fitting: Math.max(1, Math.floor((width + columnSpacing) / (200 + columnSpacing)))
    readonly property real cell: (width - (columns - 1) * columnSpacing) / columns

    columns: Math.max(1, Math.min(fitting, legend.rows.count))
    columnSpacing: 12
    rowSpacing: 6

    Repeater {
        model: grid.legend.rows
        RowLayout {
            id: entry
            required property trendLegendRow row
            width: Math.min(grid.cell, 260)
            height: 16
            spacing: 5
            Rectangle {
                implicitWidth: 7
                implicitHeight: 7
                radius: 1
                color: Theme.dark ? entry.row.color.dark : entry.row.color.light
            }
            AppIcon {
                visible: entry.row.icon !== ""
                source: entry.row.icon
                size: 16
            }
            DataText {
                Layout.fillWidth: true
                text: entry.row.title
                font.pixelSize: Theme.smallest
                color: Theme.secondary
            }
        }
    }
}
