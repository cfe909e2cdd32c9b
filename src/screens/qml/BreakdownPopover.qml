import QtQuick
import QtQuick.Layouts
import Vantrell

// Each currency of a figure, exactly.
Popover {
    id: popover

    required property moneyValue money
    readonly property CurrencyBreakdown breakdown: Theme.breakdown

    onMoneyChanged: popover.breakdown.open(popover.money)
    Component.onCompleted: {
        popover.breakdown.open(popover.money)
        popover.open()
    }

    contentItem: ColumnLayout {
        spacing: 10
        Accessible.role: Accessible.Grouping
        Accessible.name: popover.breakdown.title

        PlainText {
            text: popover.breakdown.title
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
            Layout.minimumWidth: 202
        }
        ListView {
            id: list
            Layout.fillWidth: true
            Layout.preferredWidth: list.rowWidth
            Layout.preferredHeight: Math.min(contentHeight, 320)
            clip: contentHeight > height
            spacing: 5
            boundsBehavior: Flickable.StopAtBounds
            model: popover.breakdown.rows
            property real rowWidth: 280
            property real codeWidth: 40
            property real amountWidth: 110
            delegate: RowLayout {
                id: entry
                required property breakdownRow row
                width: list.width
                spacing: 14
                PlainText {
                    Layout.minimumWidth: list.codeWidth
                    Layout.maximumWidth: 90
                    horizontalAlignment: Text.AlignRight
                    text: entry.row.code
                    font.pixelSize: Theme.caption
                    font.family: "monospace"
                    color: Theme.secondary
                }
                PlainText {
                    Layout.fillWidth: true
                    Layout.minimumWidth: list.amountWidth
                    horizontalAlignment: Text.AlignRight
                    text: entry.row.amount
                    font.pixelSize: Theme.callout
                    Accessible.name: entry.row.spokenAmount
                }
                PlainText {
                    Layout.minimumWidth: 90
                    horizontalAlignment: Text.AlignRight
                    text: entry.row.converted
                    Accessible.name: entry.row.spokenConverted
                    font.pixelSize: entry.row.hasNoRate ? Theme.smallest : Theme.caption
                    color: entry.row.hasNoRate ? Theme.warning : Theme.secondary
                }
            }
        }
        PlainText {
            Layout.fillWidth: true
            visible: text !== ""
            text: popover.breakdown.footer
            font.pixelSize: Theme.smallest
            color: Theme.tertiary
        }
    }
}
