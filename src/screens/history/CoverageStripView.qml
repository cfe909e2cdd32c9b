import QtQuick
import Vantrell

// The days that the service keeps, a column a week. What is told of a day follows the pointer or the arrow keys.
Item {
    id: view

    required property CoverageStrip strip
    readonly property real pitch: Math.max(5, Math.min(16, Math.floor(view.width / Math.max(1, strip.weeks))))
    readonly property real gap: view.pitch < 10 ? 1 : 2
    readonly property real head: 18

    implicitHeight: legend.y + legend.height
    activeFocusOnTab: true
    onActiveFocusChanged: if (!activeFocus) view.strip.clearSelection()
    Accessible.role: Accessible.Chart
    Accessible.name: qsTr("Days of the last year")
    Accessible.description: view.strip.selection < 0 ? view.strip.summary : view.strip.selected.text
    Accessible.focusable: true
    Keys.onLeftPressed: view.strip.moveByDays(-7)
    Keys.onRightPressed: view.strip.moveByDays(7)
    Keys.onUpPressed: view.strip.moveByDays(-1)
    Keys.onDownPressed: view.strip.moveByDays(1)
    Keys.onEscapePressed: event => {
        event.accepted = view.strip.selection >= 0
        view.strip.clearSelection()
    }

    Repeater {
        model: view.strip.months
        PlainText {
            id: month
            required property stripMonth row
            x: month.row.week * view.pitch
            width: 4 * view.pitch
            spoken: false
            text: month.row.text
            font.pixelSize: Theme.smallest
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 7
            color: Theme.tertiary
        }
    }
    Item {
        id: field
        y: view.head
        width: view.strip.weeks * view.pitch
        height: 7 * view.pitch

        HoverHandler {
            // A pointer that rests where it is doesn't take back what the arrow keys chose.
            readonly property int week: hovered ? Math.floor(point.position.x / view.pitch) : -1
            readonly property int weekday: hovered ? Math.floor(point.position.y / view.pitch) : -1
            onWeekChanged: view.strip.selectAt(week, weekday)
            onWeekdayChanged: view.strip.selectAt(week, weekday)
        }
        Repeater {
            model: view.strip.days
            Rectangle {
                id: cell
                required property stripDay row
                x: cell.row.week * view.pitch
                y: cell.row.weekday * view.pitch
                width: view.pitch - view.gap
                height: width
                radius: view.pitch < 10 ? 1 : 3
                color: Theme.covered(cell.row.status)
                border.width: cell.row.status === "missing" ? 1 : 0
                border.color: Theme.chartZero
            }
        }
        Rectangle {
            id: mark
            visible: view.strip.selection >= 0
            x: view.strip.selected.week * view.pitch - 2
            y: view.strip.selected.weekday * view.pitch - 2
            width: view.pitch - view.gap + 4
            height: width
            radius: 4
            color: "transparent"
            border.width: 2
            border.color: Theme.primary
            Hint {
                delay: 0
                y: mark.height + 4
                shown: view.strip.selection >= 0
                text: view.strip.selected.text
            }
        }
    }
    Flow {
        id: legend
        y: field.y + field.height + 8
        width: parent.width
        spacing: 14
        Repeater {
            model: view.strip.counts
            Row {
                id: entry
                required property stripCount row
                spacing: 5
                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 9
                    height: 9
                    radius: 2
                    color: Theme.covered(entry.row.status)
                    border.width: entry.row.status === "missing" ? 1 : 0
                    border.color: Theme.chartZero
                }
                PlainText {
                    text: entry.row.text
                    font.pixelSize: Theme.smallest
                    color: Theme.secondary
                }
            }
        }
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
}
