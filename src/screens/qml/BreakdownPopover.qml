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
        Accessible.name: qsTr("By currency")

        PlainText {
            text: qsTr("By currency")
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
            // Every row is there at once but for absurdly many, so that the columns stay as they are.
            cacheBuffer: 1600
            readonly property real rowWidth: list.codeWidth + list.amountWidth + list.convertedWidth + 28
            property real codeWidth: 34
            property real amountWidth: 96
            property real convertedWidth: 74
            delegate: RowLayout {
                id: entry
                required property breakdownRow row
                width: list.width
                spacing: 14
                DataText {
                    Layout.preferredWidth: list.codeWidth
                    horizontalAlignment: Text.AlignRight
                    onImplicitWidthChanged: list.codeWidth = Math.min(90, Math.max(list.codeWidth, Math.ceil(implicitWidth)))
                    text: entry.row.code
                    font.pixelSize: Theme.caption
                    font.family: "monospace"
                    color: Theme.secondary
                }
                DataText {
                    Layout.fillWidth: true
                    Layout.preferredWidth: list.amountWidth
                    horizontalAlignment: Text.AlignRight
                    onImplicitWidthChanged: list.amountWidth = Math.min(220, Math.max(list.amountWidth, Math.ceil(implicitWidth)))
                    text: entry.row.amount
                    font.pixelSize: Theme.callout
                    Accessible.name: entry.row.spokenAmount
                }
                DataText {
                    Layout.preferredWidth: list.convertedWidth
                    horizontalAlignment: Text.AlignRight
                    onImplicitWidthChanged: list.convertedWidth = Math.min(200, Math.max(list.convertedWidth, Math.ceil(implicitWidth)))
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
