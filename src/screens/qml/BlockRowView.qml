import QtQuick
import Vantrell

// One row of a block, on its part of the card.
FocusScope {
    id: entry

    required property var row
    required property int kind
    required property bool startsBlock
    required property bool endsBlock
    required property bool isDivided
    required property int index

    // For the kinds that only this screen has.
    property Component special: null
    readonly property BlockView list: ListView.view as BlockView
    readonly property bool isStop: list !== null && list.stop === index
    readonly property real gap: startsBlock ? 20 : 0
    // What brings its own cards lies on none.
    readonly property bool isBare: kind === RowKind.Tiles
    readonly property real inset: isBare ? 0 : 16

    width: list !== null ? list.rowWidth : 0
    height: content.y + content.height + (endsBlock ? inset : 0)
    onActiveFocusChanged: if (entry.activeFocus) entry.list.currentIndex = entry.index

    CardSlice {
        visible: !entry.isBare
        anchors.fill: parent
        anchors.topMargin: entry.gap
        first: entry.startsBlock
        last: entry.endsBlock
    }
    Loader {
        id: content
        x: entry.inset
        y: entry.gap + (entry.startsBlock ? entry.inset : 0)
        width: entry.width - 2 * entry.inset
        focus: true
        sourceComponent: {
            switch (entry.kind) {
            case RowKind.Heading: return heading
            case RowKind.Note: return note
            case RowKind.Absence: return absence
            case RowKind.Period: return period
            case RowKind.Product: return product
            default: return entry.special
            }
        }
    }
    Divider {
        visible: entry.isDivided
        x: 16
        width: entry.width - 32
        anchors.bottom: parent.bottom
    }

    Component {
        id: heading
        DataText {
            bottomPadding: 6
            text: entry.row
            font.pixelSize: Theme.headline
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
    }
    Component {
        id: note
        PlainText {
            topPadding: 10
            wrapMode: Text.Wrap
            text: entry.row
            font.pixelSize: Theme.smallest
            color: Theme.tertiary
        }
    }
    Component {
        id: absence
        PlainText {
            wrapMode: Text.Wrap
            text: entry.row
            font.pixelSize: Theme.callout
            color: Theme.secondary
        }
    }
    Component {
        id: period
        PeriodRow {
            row: entry.row
            tabStop: entry.isStop
            focus: true
        }
    }
    Component {
        id: product
        ProductRow {
            row: entry.row
            tabStop: entry.isStop
            focus: true
        }
    }
}
