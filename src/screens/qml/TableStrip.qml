import QtQuick
import Vantrell

// One row of a table. Pushing it aside pushes all rows of the table.
Flickable {
    id: strip

    required property TableShape table
    readonly property bool mirrored: LayoutMirroring.enabled

    contentWidth: Math.max(strip.width, strip.table.tableWidth)
    contentHeight: height
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    interactive: strip.table.excess > 0
    clip: strip.interactive
    onContentXChanged: {
        if (strip.moving)
            strip.table.offset = strip.mirrored ? strip.table.excess - strip.contentX : strip.contentX
    }
    Binding {
        target: strip
        property: "contentX"
        value: strip.mirrored ? strip.table.excess - strip.table.offset : strip.table.offset
        when: !strip.moving
        restoreMode: Binding.RestoreNone
    }
}
