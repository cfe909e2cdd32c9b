import QtQuick
import Vantrell

// A chart with what it says about the column under the pointer or chosen by the arrow keys.
Item {
    id: view

    required property Chart chart
    // What the chart scrolls in; the annotation stays in its sight.
    required property Flickable viewport
    // What a screen reader is told.
    readonly property string text: view.chart.selection < 0 ? view.chart.summary : view.chart.annotation.spoken

    activeFocusOnTab: true
    onActiveFocusChanged: if (!activeFocus) view.chart.clearSelection()
    Accessible.role: Accessible.Chart
    Accessible.name: view.chart.title
    Accessible.description: view.text
    Accessible.focusable: true
    Accessible.onPressAction: view.chart.open(view.chart.selection)
    Keys.onLeftPressed: view.chart.moveSelection(-1)
    Keys.onRightPressed: view.chart.moveSelection(1)
    Keys.onReturnPressed: view.chart.open(view.chart.selection)
    Keys.onEnterPressed: view.chart.open(view.chart.selection)
    Keys.onSpacePressed: view.chart.open(view.chart.selection)
    Keys.onEscapePressed: event => {
        event.accepted = view.chart.selection >= 0
        view.chart.clearSelection()
    }
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home) {
            view.chart.selectOldest()
        } else if (event.key === Qt.Key_End) {
            view.chart.selectNewest()
        } else {
            return
        }
        event.accepted = true
    }

    ChartItem {
        id: item
        anchors.fill: parent
        chart: view.chart
        isDark: Theme.dark
        proceedsColor: Theme.chartProceeds
        refundsColor: Theme.chartRefunds
        missingColor: Theme.chartMissing
        zeroColor: Theme.chartZero
        gridColor: Theme.chartGrid
        labelColor: Theme.tertiary
        labelFont: sample.font

        HoverHandler {
            // A pointer that rests where it is doesn't take back what the arrow keys chose.
            readonly property int column: hovered ? item.columnAt(point.position) : -1
            cursorShape: view.chart.opensDays ? Qt.PointingHandCursor : Qt.ArrowCursor
            onColumnChanged: view.chart.select(column)
        }
        TapHandler {
            onTapped: eventPoint => view.chart.open(item.columnAt(eventPoint.position))
        }
    }
    PlainText {
        id: sample
        visible: false
        font.pixelSize: Theme.smallest
    }
    Rectangle {
        anchors.fill: parent
        anchors.margins: -6
        visible: view.activeFocus
        radius: Theme.controlRadius
        color: "transparent"
        border.width: 2
        border.color: Theme.accent
    }
    Rectangle {
        visible: view.chart.selection >= 0
        x: Math.round(item.selectedX)
        y: item.plot.y
        width: 1
        height: item.plot.height
        color: Theme.secondary
    }
    ChartCallout {
        id: callout
        readonly property real room: {
            view.viewport.contentY
            view.chart.selection
            return view.mapToItem(view.viewport, 0, 0).y - 4
        }
        visible: view.chart.selection >= 0
        chart: view.chart
        // Beside the column where there is no room above, lest it hides what it tells of.
        readonly property bool fitsAbove: room >= height - item.plot.y + 4
        readonly property real wantedX: fitsAbove ? item.selectedX - width / 2
            : item.selectedX + 12 + width <= view.width ? item.selectedX + 12
            : item.selectedX - 12 - width
        x: Math.max(0, Math.min(wantedX, view.width - width))
        y: Math.max(-room, item.plot.y - height - 4)
    }
}
