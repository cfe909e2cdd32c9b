import QtQuick
import Vantrell

BlockView {
    id: screen

    required property ByDayView trends

    rows: screen.trends.rows
    Accessible.name: screen.trends.title
    delegate: BlockRowView {
        id: entry
        special: entry.kind === RowKind.Day ? day : chart

        Component {
            id: chart
            TrendBlock {
                model: screen.trends
                viewport: screen
            }
        }
        Component {
            id: day
            DayRow {
                row: entry.row
                tabStop: entry.isStop
                focus: true
                onActivated: screen.trends.openDay(entry.row.key)
            }
        }
    }

    DaySheetPopup { sheet: screen.trends.selectedDay }
}
