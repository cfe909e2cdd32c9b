import QtQuick
import Vantrell

// A text of any length on one line: what doesn't fit is told under the pointer.
PlainText {
    id: line

    Loader {
        active: line.truncated
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
