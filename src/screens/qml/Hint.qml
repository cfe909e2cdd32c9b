import QtQuick
import QtQuick.Templates as T
import Vantrell

// Help on what lies under the pointer.
T.ToolTip {
    id: hint

    property bool shown: false

    // What it tells of may leave the window while the delay runs.
    visible: shown && text !== "" && parent !== null && parent.Window.window !== null
    delay: 500
    margins: 8
    padding: 8
    y: parent ? parent.height + 6 : 0
    x: 0
    implicitWidth: Math.min(content.implicitWidth, 360) + leftPadding + rightPadding
    implicitHeight: content.implicitHeight + topPadding + bottomPadding

    contentItem: PlainText {
        id: content
        spoken: false
        text: hint.text
        wrapMode: Text.Wrap
        font.pixelSize: Theme.caption
    }
    background: Rectangle {
        radius: 6
        color: Theme.raised
        border.color: Theme.border
    }
}
