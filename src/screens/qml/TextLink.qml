import QtQuick
import QtQuick.Templates as T
import Vantrell

// Words in a line that can be pressed.
T.AbstractButton {
    id: link

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight + 4
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.6
    Accessible.role: Accessible.Link
    Accessible.name: link.text
    Accessible.onPressAction: link.clicked()
    Keys.onReturnPressed: link.clicked()
    Keys.onEnterPressed: link.clicked()

    contentItem: DataText {
        id: label
        verticalAlignment: Text.AlignVCenter
        spoken: false
        text: link.text
        font.pixelSize: Theme.callout
        font.weight: Font.Medium
        font.underline: link.hovered
        color: Theme.accent
    }
    background: FocusRing { control: link }
    HoverHandler { cursorShape: Qt.PointingHandCursor }
}
