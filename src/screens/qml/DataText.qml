import QtQuick
import Vantrell

// A text of any length on one line: what doesn't fit is told under the pointer.
PlainText {
    id: text

    HoverHandler {
        id: hover
        enabled: text.truncated
    }
    Loader {
        active: hover.hovered && text.truncated
        sourceComponent: Hint {
            parent: text
            shown: true
            text: text.text
        }
    }
}
