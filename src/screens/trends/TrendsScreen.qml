import QtQuick
import Qt.labs.qmlmodels
import Vantrell

BlockView {
    id: screen

    required property ByDayView trends

    rows: screen.trends.rows
    Accessible.name: qsTr("Trends Over Time")
    delegate: BlockDelegates {
        DelegateChoice {
            roleValue: RowKind.Chart
            BlockRowView {
                id: chart
                TrendBlock {
                    width: chart.contentWidth
                    model: screen.trends
                    viewport: screen
                }
            }
        }
        DelegateChoice {
            roleValue: RowKind.Day
            BlockRowView {
                id: day
                DayRow {
                    width: day.contentWidth
                    row: day.row
                    tabStop: day.isStop
                    focus: true
                    onActivated: screen.trends.openDay(day.row.key)
                }
            }
        }
    }

    DaySheetPopup { sheet: screen.trends.selectedDay }
}
