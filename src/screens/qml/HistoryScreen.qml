import QtQuick
import Vantrell

BlockView {
    id: screen

    required property HistoryView history
    rows: screen.history.rows
    Accessible.name: screen.history.title
    delegate: BlockRowView {}
}
