import QtQuick
import Qt.labs.qmlmodels
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
        Accessible.name: qsTr("Apps Overview")
        delegate: BlockDelegates {
            DelegateChoice {
                roleValue: RowKind.WindowTitles
                BlockRowView {
                    id: windowTitles
                    TableHeader {
                        width: windowTitles.contentWidth
                        table: windows
                        titles: windowTitles.row
                    }
                }
            }
            DelegateChoice {
                roleValue: RowKind.AppWindows
                BlockRowView {
                    id: app
                    AppWindowsRow {
                        width: app.contentWidth
                        table: windows
                        row: app.row
                        tabStop: app.isStop
                        onActivated: screen.apps.open(app.row)
                    }
                }
            }
            DelegateChoice {
                roleValue: RowKind.ProductWindows
                BlockRowView {
                    id: product
                    ProductWindowsRow {
                        width: product.contentWidth
                        table: windows
                        row: product.row
                        tabStop: product.isStop
                        onActivated: screen.apps.open(product.row)
                    }
                }
            }
            DelegateChoice {
                roleValue: RowKind.YearTitles
                BlockRowView {
                    id: yearTitles
                    TableHeader {
                        width: yearTitles.contentWidth
                        table: years
                        titles: yearTitles.row
                    }
                }
            }
            DelegateChoice {
                roleValue: RowKind.Years
                BlockRowView {
                    id: earned
                    AppYearsRow {
                        width: earned.contentWidth
                        table: years
                        row: earned.row
                        tabStop: earned.isStop
                    }
                }
            }
            DelegateChoice {
                roleValue: RowKind.PayoutTitles
                BlockRowView {
                    id: payoutTitles
                    TableHeader {
                        width: payoutTitles.contentWidth
                        table: payouts
                        titles: payoutTitles.row
                    }
                }
            }
            DelegateChoice {
                roleValue: RowKind.Payout
                BlockRowView {
                    id: paid
                    AppPaidRow {
                        width: paid.contentWidth
                        table: payouts
                        row: paid.row
                        tabStop: paid.isStop
                    }
                }
            }
        }
    }
}
