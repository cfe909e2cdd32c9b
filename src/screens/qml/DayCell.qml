import QtQuick
import Vantrell

// One day on the leaf of a calendar.
Rectangle {
    id: cell

    required property monthDay row
    required property int index
    required property bool showsCursor
    signal picked()

    radius: width / 2
    color: cell.row.isChosen ? Theme.accentFill
        : hover.hovered && cell.row.isEnabled ? Theme.quaternary : "transparent"
    border.width: cell.row.hasCursor && cell.showsCursor ? 2 : 0
    border.color: cell.row.isChosen ? Theme.primary : Theme.accent
    Accessible.role: Accessible.Cell
    Accessible.name: cell.row.spoken
    Accessible.selectable: cell.row.isEnabled
    Accessible.selected: cell.row.isChosen
    Accessible.onPressAction: cell.picked()

    HoverHandler { id: hover }
    TapHandler { onTapped: cell.picked() }
    PlainText {
        anchors.centerIn: parent
        spoken: false
        opacity: !cell.row.isEnabled ? 0.35 : cell.row.isInMonth ? 1 : 0.6
        text: cell.row.text
        font.pixelSize: Theme.callout
        font.weight: cell.row.isToday ? Font.DemiBold : Font.Normal
        color: cell.row.isChosen ? Theme.accentInk : cell.row.isToday ? Theme.accent : Theme.primary
    }
}
