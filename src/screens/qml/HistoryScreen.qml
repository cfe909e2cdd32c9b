import QtQuick
import Vantrell

BlockView {
    id: screen

    required property HistoryView history
    focus: true
    rows: screen.history.rows
    Accessible.name: qsTr("History")
    delegate: BlockDelegates {}
}
