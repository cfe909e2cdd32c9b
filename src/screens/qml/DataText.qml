import QtQuick
import Vantrell

// A text of any length on one line: what doesn't fit is told under the pointer.
PlainText {
    id: line

    // Also where the text itself runs the other way.
    horizontalAlignment: Text.AlignLeft

    HoverHandler {
        id: hover
        enabled: line.truncated
    }
    Loader {
        active: hover.hovered && line.truncated
        sourceComponent: Hint {
            parent: line
            shown: true
            text: line.text
        }
    }
}
