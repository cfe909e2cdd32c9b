import QtQuick

// What the rows of a table share: its columns, and how far it was pushed aside where it is wider than the card.
QtObject {
    id: shape

    required property real leastNameWidth
    required property real columnWidth
    required property real spacing
    required property int columns
    // What the card has for it.
    property real room: 0
    property real offset: 0

    readonly property real padding: 12
    readonly property real figuresWidth: columns * (spacing + columnWidth) + 2 * padding
    // Names take what the figures leave them, as long as the eye still finds its way along the row.
    readonly property real nameWidth: Math.max(leastNameWidth, Math.min(480, room - figuresWidth))
    readonly property real tableWidth: nameWidth + figuresWidth
    readonly property real excess: Math.max(0, tableWidth - room)
    onExcessChanged: shape.offset = Math.min(shape.offset, shape.excess)

    function push(distance) {
        shape.offset = Math.max(0, Math.min(shape.excess, shape.offset + distance))
    }
    function columnStart(column) {
        return shape.padding + shape.nameWidth + shape.spacing + column * (shape.columnWidth + shape.spacing)
    }
    // Brings a column into sight.
    function reveal(column) {
        const start = shape.columnStart(column)
        shape.push(Math.min(0, start - shape.padding - shape.offset))
        shape.push(Math.max(0, start + shape.columnWidth + shape.padding - shape.offset - shape.room))
    }
}
