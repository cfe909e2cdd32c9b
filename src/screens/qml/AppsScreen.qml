import QtQuick
import Vantrell

Item {
    id: screen

    required property AppsView apps

    EmptyStateView {
        visible: screen.apps.isEmpty
        anchors.centerIn: parent
        width: parent.width - 40
        content: screen.apps.emptyState
    }
    TableShape {
        id: windows
        room: list.rowWidth - 32
        leastNameWidth: 250
        columnWidth: 100
        spacing: 16
        columns: 4
    }
    TableShape {
        id: years
        room: list.rowWidth - 32
        leastNameWidth: 150
        columnWidth: 80
        spacing: 12
        columns: screen.apps.yearCount
    }
    TableShape {
        id: payouts
        room: list.rowWidth - 32
        leastNameWidth: 150
        columnWidth: 120
        spacing: 20
        columns: 2
    }
    BlockView {
        id: list
        anchors.fill: parent
        visible: !screen.apps.isEmpty
        focus: true
        rows: screen.apps.rows
        Accessible.name: screen.apps.title
        delegate: BlockRowView {
            id: entry
            special: {
                switch (entry.kind) {
                case RowKind.WindowTitles: return windowTitles
                case RowKind.Windows: return windowsRow
                case RowKind.YearTitles: return yearTitles
                case RowKind.Years: return yearsRow
                case RowKind.PayoutTitles: return payoutTitles
                default: return payoutRow
                }
            }
            Component {
                id: windowTitles
                TableHeader { table: windows; titles: entry.row }
            }
            Component {
                id: windowsRow
                AppWindowsRow {
                    table: windows
                    row: entry.row
                    tabStop: entry.isStop
                    onActivated: screen.apps.open(entry.row)
                }
            }
            Component {
                id: yearTitles
                TableHeader { table: years; titles: entry.row }
            }
            Component {
                id: yearsRow
                AppYearsRow {
                    table: years
                    row: entry.row
                    tabStop: entry.isStop
                }
            }
            Component {
                id: payoutTitles
                TableHeader { table: payouts; titles: entry.row }
            }
            Component {
                id: payoutRow
                AppPaidRow {
                    table: payouts
                    row: entry.row
                    tabStop: entry.isStop
                }
            }
        }
    }
}
