import QtQuick
import Vantrell

// A text of any length on one line: what doesn't fit is told under the pointer.
PlainText {
    id: line

    // False for a text whose control explains it.
    property bool isExplained: true

    Loader {
        active: line.isExplained && line.truncated
        anchors.fill: parent
        sourceComponent: Item {
            HoverHandler { id: hover }
            Hint {
                parent: line
                shown: hover.hovered
                text: line.text
            }
        }
    }
}
