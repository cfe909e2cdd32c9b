import QtQuick
import QtQuick.Templates as T
import Vantrell

// What was paid, one row a fiscal period.
Item {
    id: screen

    required property PayoutsView model

    EmptyStateView {
        visible: screen.model.isEmpty
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 20
        anchors.topMargin: 80
        content: screen.model.emptyState
    }
    ListView {
        id: list

        readonly property real rowWidth: Math.min(list.width - 40, Theme.widestContent)

        visible: !screen.model.isEmpty
        anchors.fill: parent
        leftMargin: (list.width - list.rowWidth) / 2
        rightMargin: leftMargin
        // What is shown doesn't follow the margins by itself.
        onLeftMarginChanged: list.contentX = -list.leftMargin
        topMargin: 20
        bottomMargin: 20
        clip: true
        cacheBuffer: 400
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: Theme.quick
        model: screen.model.rows
        T.ScrollBar.vertical: ScrollLine {}
        readonly property ReadingOrder order: ReadingOrder { content: list.contentItem }
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Finance reports")
        header: Column {
            width: list.rowWidth
            bottomPadding: 8
            leftPadding: 4
            PlainText {
                text: qsTr("Finance reports")
                font.pixelSize: Theme.headline
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }
            FormNote {
                visible: text !== ""
                width: parent.width - 8
                topPadding: 4
                text: screen.model.since
            }
        }
        footer: FormNote {
            width: Math.min(list.rowWidth, 720)
            topPadding: 12
            leftPadding: 4
            text: qsTr("What Apple actually paid, by fiscal month, in the payout currencies. Fiscal months "
                + "end on Saturdays; reports appear about a week after close. Sales proceeds and payouts "
                + "for the same span will be close, never identical.")
        }
        // The rows may come after the list, which would then begin below its heading.
        Timer {
            interval: 0
            running: list.count > 0
            onTriggered: list.contentY = list.originY - list.topMargin
        }
        delegate: PayoutEntry {
            model: screen.model
            rowWidth: list.rowWidth
        }
    }
}
