import QtQuick
import Qt.labs.qmlmodels
import Vantrell

BlockView {
    id: screen

    required property AppDetailView detail

    focus: true
    rows: screen.detail.rows
    Accessible.name: screen.detail.title
    delegate: BlockDelegates {
        DelegateChoice {
            roleValue: RowKind.Tiles
            BlockRowView {
                id: tiles
                isBare: true
                TileGrid {
                    width: tiles.contentWidth
                    tiles: screen.detail.tiles
                }
            }
        }
        DelegateChoice {
            roleValue: RowKind.Chart
            BlockRowView {
                id: chart
                ChartBlock {
                    width: chart.contentWidth
                    chartHeight: 220
                    chart: screen.detail.chart
                    viewport: screen
                }
            }
        }
        DelegateChoice {
            roleValue: RowKind.Country
            BlockRowView {
                id: country
                CountryLine {
                    width: country.contentWidth
                    row: country.row
                    tabStop: country.isStop
                    focus: true
                }
            }
        }
    }

    DaySheetPopup { sheet: screen.detail.selectedDay }
}
