import QtQuick
import Vantrell

BlockView {
    id: screen

    required property HistoryView history
    required property SyncButton syncButton
    focus: true
    rows: screen.history.rows
    Accessible.name: qsTr("History")
    delegate: BlockDelegates {}
    header: Column {
        width: screen.rowWidth
        topPadding: 20
        spacing: 10
        PlainText {
            width: parent.width
            wrapMode: Text.Wrap
            text: screen.history.coverage
            font.pixelSize: Theme.callout
            color: Theme.secondary
        }
        CoverageStripView {
            width: parent.width
            strip: screen.history.strip
        }
        PushButton {
            visible: !screen.history.isWhole
            text: qsTr("Fetch What Is Missing")
            enabled: screen.syncButton.isEnabled
            onClicked: screen.syncButton.press()
        }
    }
}
