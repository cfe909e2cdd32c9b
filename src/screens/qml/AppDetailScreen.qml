import QtQuick
import Vantrell

BlockView {
    id: screen

    required property AppDetailView detail

    focus: true
    rows: screen.detail.rows
    Accessible.name: screen.detail.title
    delegate: BlockRowView {
        id: entry
        special: {
            switch (entry.kind) {
            case RowKind.Tiles: return tiles
            case RowKind.Chart: return chart
            default: return country
            }
        }

        Component {
            id: tiles
            TileGrid { tiles: screen.detail.tiles }
        }
        Component {
            id: chart
            ChartBlock {
                chartHeight: 220
                chart: screen.detail.chart
                legend: screen.detail.legend
                viewport: screen
            }
        }
        Component {
            id: country
            CountryLine {
                row: entry.row
                tabStop: entry.isStop
                focus: true
            }
        }
    }    DaySheetPopup { sheet: screen.detail.selectedDay }
}
